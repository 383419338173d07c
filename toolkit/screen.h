// What the module's forms open on, the display of the host's main window, and the list of all forms. For
// whoever fits a form to the display or looks for an open form. It moves and draws nothing.
#pragma once

#include <vector>

#include "toolkit/component.h"

class TForm;

/// The display that the forms of a life open on. What the original knows of monitors, cursors and the desktop
/// is not there.
class TScreen : public TComponent {
  Q_OBJECT

 public:
  TScreen();

  /// Width of the display of the host's main window, pixels; 0 without a display.
  int Width() const;
  /// Its height, pixels; 0 without a display.
  int Height() const;
  /// Number of the life's forms.
  int FormCount() const { return static_cast<int>(forms_.size()); }
  /// A form by its place in the order of creation, from 0; std::out_of_range when there is none.
  TForm* Forms(int index) const { return forms_.at(static_cast<std::size_t>(index)); }
  /// The form whose window is active, null when it is none of the life's.
  TForm* ActiveForm() const;

  /// Appends a form to the list; its life calls it.
  void Add(TForm* form) { forms_.push_back(form); }
  /// Removes a form from the list; its life calls it.
  void Remove(TForm* form) { std::erase(forms_, form); }

 private:
  std::vector<TForm*> forms_;
};

/// The screen of the life that is served, null outside a life.
extern TScreen* Screen;
