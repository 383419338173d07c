#include "dialogs/validators.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <limits>
#include <string_view>

#include "dialogs/message_keys.h"
#include "toolkit/decimal_text.h"

namespace {

constexpr std::size_t kDecimals = 2;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

// The value of a hexadecimal digit, or 16.
unsigned HexValue(char c) {
  if (IsDigit(c)) return static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a') + 10;
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A') + 10;
  return 16;
}

// Removes white space and one sign from the beginning; true if the sign was "-".
bool TakeSign(std::string_view& text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
  const bool negative = text.front() == '-';
  text.remove_prefix(1);
  return negative;
}

// The digits of the given base at the start of the text, held at `limit`.
std::int64_t TakeDigits(std::string_view text, unsigned base, std::int64_t limit) {
  std::int64_t value = 0;
  for (const char c : text) {
    const unsigned digit = HexValue(c);
    if (digit >= base) break;
    value = std::min(value * base + digit, limit);
  }
  return value;
}

bool HasHexPrefix(std::string_view text) {
  return text.size() >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
}

std::int32_t ParseHexadecimal(std::string_view text) {
  const bool negative = TakeSign(text);
  if (HasHexPrefix(text)) text.remove_prefix(2);
  const std::int64_t value = TakeDigits(text, 16, std::numeric_limits<std::uint32_t>::max());
  const auto bits = static_cast<std::uint32_t>(value);
  return std::bit_cast<std::int32_t>(negative ? 0U - bits : bits);
}

int LastDayOfMonth(int year, int month) {
  if (month == 4 || month == 6 || month == 9 || month == 11) return 30;
  if (month != 2) return 31;
  const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return leap ? 29 : 28;
}

}  // namespace

std::string CheckDate(const std::string& text) {
  if (text.size() != 8 || !IsAllDigits(text)) return norvik::message::kNotEightDigits;
  const bool valid = IsValidDate(ParseNumber(text.substr(0, 4)), ParseNumber(text.substr(4, 2)),
                                 ParseNumber(text.substr(6, 2)));
  return valid ? "" : norvik::message::kNoSuchDay;
}

bool IsValidDate(int year, int month, int day) {
  return year >= 1900 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 &&
         day <= LastDayOfMonth(year, month);
}

bool IsAllDigits(const std::string& text) {
  return std::all_of(text.begin(), text.end(), IsDigit);
}

std::int32_t ParseNumber(const std::string& text) {
  std::string_view rest = text;
  if (HasHexPrefix(rest)) return ParseHexadecimal(rest.substr(2));
  const bool negative = TakeSign(rest);
  const std::int64_t highest = std::numeric_limits<std::int32_t>::max();
  const std::int64_t value = TakeDigits(rest, 10, negative ? highest + 1 : highest);
  return static_cast<std::int32_t>(negative ? -value : value);
}

std::string FormatAmount(const std::string& text) {
  std::string_view rest = text.empty() ? std::string_view("0") : std::string_view(text);
  const bool negative = rest.front() == '-';
  if (negative) rest.remove_prefix(1);
  const std::size_t point = rest.find('.');
  const std::string_view whole = rest.substr(0, point);
  std::string fraction(point == std::string_view::npos ? std::string_view() : rest.substr(point + 1));
  fraction.resize(kDecimals, '0');

  return (negative ? "-" : "") + GroupThousands(whole) + "." + fraction;
}
