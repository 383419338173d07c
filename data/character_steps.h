// Searching and cutting narrow text by whole characters.
//
// This is the one place where the library steps through narrow text. In a double-byte code page the second
// byte of a character may look like `\`, `|` or another ASCII character; it is not that character, and none
// of these operations takes it for one. Splitting, joining and escaping (StringVector), replaceAll and cuts
// all go through here.
#pragma once

#include <cstddef>
#include <string_view>

namespace corvane {

// The position of the first `what` at or behind `from` that starts and ends where characters of `text` do, or
// npos. `from` is the start of a character; an empty `what` is never found.
std::size_t findText(std::string_view text, std::string_view what, std::size_t from = 0);

// True if the character before `at`, itself the start of a character, is a backslash; `behind` is the start
// of a character at or before that one, 0 if no better one is known.
bool isBehindBackslash(std::string_view text, std::size_t at, std::size_t behind = 0);

// The longest beginning of `text` of whole characters and at most `bytes` bytes.
std::string_view cutText(std::string_view text, std::size_t bytes);

}  // namespace corvane
