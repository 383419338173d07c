// What the user can bring into a text field: lengths in bytes and characters, and which texts may be in it.
// Edits and memos apply it to each step of the user's; texts set by code are not limited.
#pragma once

#include <QString>
#include <functional>
#include <string>
#include <string_view>

/// What the user's typing and pasting may bring into a text field. Control characters and characters that the
/// code page lacks never go in.
struct TInputLimits {
  /// Maximum bytes of narrow text, 0: no limit.
  int maxLength = 0;
  /// Maximum characters, however many bytes each takes, 0: no limit.
  int maxCharacters = 0;
  /// Line ends are let in and count as two bytes, and as two characters.
  bool multiLine = false;
  /// Whether one character, its narrow text, may be in the field; unset: any.
  std::function<bool(std::string_view character)> allows;
  /// Whether a narrow text as a whole may be in the field; unset: any.
  std::function<bool(const std::string& text)> accepts;
};

/// Bytes of a text as narrow text, line ends as two.
int NarrowLength(const QString& text);

/// Characters of a text, line ends as two.
int CharacterCount(const QString& text);

/// What becomes of a field's text when one step of the user's made `after` out of `before`, with the cursor
/// after what came in. Of the part that came in, characters that aren't allowed are left out, and it ends
/// before the first one that is too long for the field. A step that would make an acceptable text
/// unacceptable gives `before`. The cursor is moved after the part that is left.
QString LimitInput(const TInputLimits& limits, const QString& before, const QString& after, int& cursor);
