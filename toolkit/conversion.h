// Numbers and dates as texts, as the original platform's functions of these names give them, for whoever
// reads what a host, a bank or the user wrote. Amounts are in decimal.h and decimal_text.h.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

/// A text that can't be converted, or numbers that are no date.
class EConvertError : public std::runtime_error {
 public:
  /// Takes the text of what().
  using std::runtime_error::runtime_error;
};

/// Days since 1899-12-30; the fraction is the time of day.
using TDateTime = double;

/// The text without the blanks around it; only " " counts as one.
std::string_view WithoutBlanks(std::string_view text);
/// A whole number as a host or a bank writes one: decimal digits, "-" before them where it is negative, and
/// nothing else, no blank, "+" or hexadecimal prefix either. Nothing for any other text.
std::optional<std::int64_t> ParseInteger(std::string_view text);
/// The same within 32 bits; EConvertError for all else.
int StrToInt(std::string_view text);
/// The same with a result for all else.
int StrToIntDef(std::string_view text, int otherwise);
/// Decimal digits, "-" before them where the value is negative.
std::string IntToStr(int value);

/// A date from year 1 to 9999, month and day; EConvertError when the calendar lacks it.
TDateTime EncodeDate(int year, int month, int day);
/// A time of day, hour 0 to 23; EConvertError when out of range.
TDateTime EncodeTime(int hour, int minute, int second, int millisecond = 0);
/// Year, month and day of a date.
void DecodeDate(TDateTime value, int& year, int& month, int& day);
/// The time of day; rounded to whole milliseconds.
void DecodeTime(TDateTime value, int& hour, int& minute, int& second, int& millisecond);
/// Current local date and time.
TDateTime Now();
/// The value with one or more seconds more.
TDateTime IncSecond(TDateTime value, int seconds = 1);
/// Writes a value by a pattern of yyyy, mm (month; minutes after h or hh), dd, hh, nn and ss; all else as it
/// is.
std::string FormatDateTime(std::string_view pattern, TDateTime value);
/// "yyyy-mm-dd hh:nn:ss".
std::string DateTimeToStr(TDateTime value);
