#include "toolkit/decimal_text.h"

#include <algorithm>
#include <cstddef>

#include "toolkit/conversion.h"

static constexpr std::size_t kMaxDigits = 30;

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// A number as it is written, its parts without sign, blanks and separators.
struct TNumber {
  bool negative = false;
  std::string whole;
  std::string_view decimals;
};

std::optional<TNumber> ParseNumber(std::string_view text) {
  text = WithoutBlanks(text);
  TNumber number;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    number.negative = text.front() == '-';
    text.remove_prefix(1);
  }
  const std::size_t point = std::min(text.find('.'), text.size());
  const std::string_view whole = text.substr(0, point);
  number.decimals = text.substr(std::min(point + 1, text.size()));
  const bool separated = !whole.empty() && (whole.front() == ',' || whole.back() == ',');
  const auto fits = [](char c) { return IsDigit(c) || c == ','; };
  if (separated || !std::ranges::all_of(whole, fits) || !std::ranges::all_of(number.decimals, IsDigit))
    return {};
  std::ranges::copy_if(whole, std::back_inserter(number.whole), IsDigit);
  const std::size_t digits = number.whole.size() + number.decimals.size();
  if (digits == 0 || digits > kMaxDigits) return {};
  return number;
}

}  // namespace

std::optional<THundredths> ParseAmount(std::string_view text) {
  const std::optional<TNumber> number = ParseNumber(text);
  if (!number) return {};
  THundredths amount = 0;
  for (const char digit : number->whole) amount = amount * 10 + (digit - '0');
  for (std::size_t i = 0; i < 2; ++i) {
    amount = amount * 10 + (i < number->decimals.size() ? number->decimals[i] - '0' : 0);
  }
  return number->negative ? -amount : amount;
}

std::string AmountText(THundredths amount) {
  const bool negative = amount < 0;
  std::string text;
  for (int written = 0; amount != 0 || written < 3; ++written) {
    if (written == 2) text += '.';
    const int digit = static_cast<int>(amount % 10);
    text += static_cast<char>('0' + (digit < 0 ? -digit : digit));
    amount /= 10;
  }
  if (negative) text += '-';
  std::ranges::reverse(text);
  return text;
}

std::string GroupThousands(std::string_view digits) {
  std::string grouped;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) grouped += ',';
    grouped += digits[i];
  }
  return grouped;
}

std::string GroupNumber(std::string_view number) {
  const bool negative = !number.empty() && number.front() == '-';
  if (negative) number.remove_prefix(1);
  const std::size_t point = std::min(number.find('.'), number.size());
  return (negative ? "-" : "") + GroupThousands(number.substr(0, point)) + std::string(number.substr(point));
}

std::string CellText(int format, const std::string& text) {
  if (format == cfAmount) {
    const std::optional<THundredths> amount = ParseAmount(text);
    return amount ? GroupNumber(AmountText(*amount)) : text;
  }
  if (format == cfNumber) {
    const std::optional<TNumber> number = ParseNumber(text);
    if (!number) return text;
    const std::string decimals = number->decimals.empty() ? "" : "." + std::string(number->decimals);
    return (number->negative ? "-" : "") + GroupThousands(number->whole) + decimals;
  }
  return text;
}
