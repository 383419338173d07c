// Sizes that follow a control's font, for the forms whose design states them in pixels at the smallest font:
// the design is the minimum, and a larger font makes the control larger. The message forms and the approval
// view use them; nothing here places a control.
#pragma once

#include <string>

class TControl;
class TbsSkinButton;

/// Width of `characters` full-width characters in the control's font, at least `minimum` pixels and, beyond
/// that, at most 70% of the screen.
int TextWidth(const TControl& control, int characters, int minimum);

/// Height of the text in the control's font, wrapped at a width; at least `minimum` pixels, and at most half
/// of the screen. Of a very long text only the beginning is measured.
int TextHeight(const TControl& control, const std::string& text, int width, int minimum);

/// Whether the whole text fits a control of that width and of the height that TextHeight returns.
bool TextFits(const TControl& control, const std::string& text, int width);

/// Sizes a button so that its caption fits in its font, at least to the given size.
void FitButton(TbsSkinButton& button, int minWidth, int minHeight);
