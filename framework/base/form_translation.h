// The translation of a form: every text that its controls, actions and menus publish, from key to text. The
// base form runs it at each show; a text that is no key is left as it is, so a second pass changes nothing.
#pragma once

class TForm;

/// Translates the tree of controls, then the action lists and menus that the form owns. A failing look-up
/// propagates; what was translated before it remains translated.
void TranslateForm(TForm& form);
