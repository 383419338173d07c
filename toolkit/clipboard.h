// The system's clipboard, for the message dialogs that let the user copy what they say. Only text is there,
// no pictures, formats or components.
#pragma once

#include <string>

/// The system's clipboard, one object: Clipboard().
class TClipboard {
 public:
  /// Begins a change; on this platform nothing has to be done for it. May be nested.
  void Open() {}
  /// Ends a change.
  void Close() {}
  /// The text on the clipboard, empty when there is none.
  std::string AsText() const;
  /// Replaces what is on the clipboard by a text.
  void SetAsText(const std::string& text);
};

/// The clipboard.
TClipboard& Clipboard();
