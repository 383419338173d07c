#pragma once

#include <string>

/// The system's clipboard, one object: Clipboard().
class TClipboard {
 public:
  /// Open and Close frame a change, as on the original platform; they may be nested.
  void Open() {}
  void Close() {}
  /// The text on the clipboard, empty when there is none.
  std::string AsText() const;
  void SetAsText(const std::string& text);
};

TClipboard& Clipboard();
