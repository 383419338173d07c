// Functions over narrow text: search and cut by whole characters, trim, replace, and numbers as text.
//
// In a double-byte code page the second byte of a character may look like `\`, `|` or another ASCII character;
// it is not that character, and none of these operations takes it for one. StringVector splits and joins by
// them; where a character ends is platform/code_page.h's matter.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "data/export.h"

namespace corvane {

/// The position of the first `what` at or after `from` that starts and ends where characters of `text` do, or
/// npos. `from` is the start of a character; an empty `what` is never found.
CORVANE_EXPORT std::size_t findText(std::string_view text, std::string_view what, std::size_t from = 0);

/// The beginning of `text` that has as many whole characters as fit into `bytes` bytes.
CORVANE_EXPORT std::string_view cutText(std::string_view text, std::size_t bytes);

/// `text` without blanks (0x20) at both ends. Tabs and line ends stay.
CORVANE_EXPORT std::string trim(std::string_view text);
/// The same at its beginning alone.
CORVANE_EXPORT std::string trimLeft(std::string_view text);
/// The same at its end alone.
CORVANE_EXPORT std::string trimRight(std::string_view text);

/// `text` with every `from` replaced by `to`, from left to right, by whole characters. What was put in is not
/// looked at again. An empty `from` changes nothing.
CORVANE_EXPORT std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// `value` as a decimal number with `decimals` digits after the decimal point, rounded: 1234.5 and 2 give
/// "1234.50", 7 and 0 give "7.". A number of digits below 0 counts as 0, one above 1,100 as 1,100, at which
/// every number is exact. A value that is no number gives what the C runtime calls it, such as "nan".
CORVANE_EXPORT std::string doubleToString(double value, int decimals);

}  // namespace corvane
