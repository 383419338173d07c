// The translation of a form: every text that its controls, actions and menus publish, from key to text. A
// text that is no key stays as it is, so a second pass changes nothing.
#pragma once

class TForm;

// Translates the tree of controls, then the action lists and menus that the form owns. A failing look-up
// goes up, with what was translated before it left translated.
void TranslateForm(TForm& form);
