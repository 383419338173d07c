// Functions over narrow text.
#pragma once

#include <string>
#include <string_view>

namespace corvane {

// `text` without blanks (0x20) at both ends, at its beginning, at its end. Tabs and line ends stay.
std::string trim(std::string_view text);
std::string trimLeft(std::string_view text);
std::string trimRight(std::string_view text);

// `text` with every `from` replaced by `to`, from left to right, by whole characters
// (data/character_steps.h). What was put in is not looked at again. An empty `from` changes nothing.
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

// `value` as a decimal number with `decimals` digits behind the point, rounded: 1234.5 and 2 give "1234.50",
// 7 and 0 give "7.". At least 0 and at most 1,100 digits, behind which every number is exact. A value that is
// no number gives what the C runtime calls it, such as "nan".
std::string doubleToString(double value, int decimals);

}  // namespace corvane
