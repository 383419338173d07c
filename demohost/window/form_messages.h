#pragma once

#include <cstdint>

// What the module's forms send to the host's main window.
namespace demohost::form_message {

inline constexpr std::uint32_t kShortcut = 0x7FC;   // a desktop shortcut is wanted
inline constexpr std::uint32_t kShown = 0x824;      // a form was shown; wParam is the form's address
inline constexpr std::uint32_t kClosed = 0x825;     // the same form was closed
inline constexpr std::uint32_t kActivated = 0x826;  // it came to the front

}  // namespace demohost::form_message
