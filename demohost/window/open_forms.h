// The module's forms as the host sees them, and the messages between the two. Used by the main window, the
// client and the contract check; knows a form by its name and its handle only.
#pragma once

#include <QString>
#include <QWidget>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/host_api.h"

namespace demohost {

namespace form_message {
// From a form.
inline constexpr std::uint32_t kShortcut = 0x7FC;   ///< a desktop shortcut is wanted
inline constexpr std::uint32_t kShown = 0x824;      ///< a form was shown; wParam is the form's address
inline constexpr std::uint32_t kClosed = 0x825;     ///< the same form was closed
inline constexpr std::uint32_t kActivated = 0x826;  ///< it came to the front
// To a form.
inline constexpr std::uint32_t kLookChanged = 0x7E9;    ///< skin and fonts are to be read anew
inline constexpr std::uint32_t kSystemCommand = 0x112;  ///< wParam is the command
inline constexpr std::uintptr_t kRestore = 0xF120;      ///< the command that brings a window back
}  // namespace form_message

/// The module's forms that the host knows, by the handle that a form enters under its class name and by the
/// messages about forms shown, closed and activated. A window is found by its object name, which is the class
/// name.
class OpenForms {
 public:
  /// A form that has a handle.
  struct Form {
    std::string className;
    norvik_handle handle = 0;    ///< takes messages to the form
    std::uintptr_t address = 0;  ///< 0 until the form has been announced
  };

  /// Takes note of a handle entered in the store, 0 for a closed form. A key that isn't a form's is ignored.
  void HandleEntered(const std::string& key, norvik_handle value);

  /// Takes the message kShown: the form at this address is the one that entered its handle last.
  void Shown(std::uintptr_t form);
  /// Takes kClosed: the form is no longer known.
  void Closed(std::uintptr_t form);
  /// Takes kActivated: the form is in front.
  void Activated(std::uintptr_t form);

  /// The announced forms, the one that was in front last at the end.
  std::vector<Form> Announced() const;
  /// Every form that has a handle, dialogs included.
  const std::vector<Form>& All() const { return forms_; }

  /// The visible window of a form, or null.
  static QWidget* WindowOf(const Form& form);
  /// The window that is in front among the module's, or null.
  QWidget* Front() const;

 private:
  std::vector<Form> forms_;
};

}  // namespace demohost
