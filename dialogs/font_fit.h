// Sizes that follow a control's font, for the forms whose design gives them in pixels at the smallest font:
// the design is the least, and grows where the font needs more.
#pragma once

#include <string>

class TControl;
class TbsSkinButton;

// Width of so many full-width characters in the control's font, at least `least` pixels and at most 70% of
// the screen.
int TextWidth(const TControl& control, int characters, int least);

// Height of the text in the control's font, wrapped at a width; at most half of the screen, at least
// `least`. Only the beginning of a very long text is measured.
int TextHeight(const TControl& control, const std::string& text, int width, int least);

// Whether the whole text is to be seen in a control of that width and TextHeight.
bool TextFits(const TControl& control, const std::string& text, int width);

// Gives a button the room that its caption needs in its font, at least the given size.
void FitButton(TbsSkinButton& button, int leastWidth, int leastHeight);
