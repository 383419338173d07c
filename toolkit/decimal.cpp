#include "toolkit/decimal.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <utility>

#include "toolkit/conversion.h"

namespace {

constexpr std::int64_t kMaxExponent = 308;

bool AreDigits(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

// What follows "e"; nothing where it is no exponent.
std::optional<std::int64_t> Exponent(std::string_view text) {
  if (text.starts_with('+') && AreDigits(text.substr(1))) text.remove_prefix(1);
  const std::optional<std::int64_t> exponent = ParseInteger(text);
  return exponent && *exponent >= -kMaxExponent && *exponent <= kMaxExponent ? exponent : std::nullopt;
}

// larger + sign * smaller, from the right to the left.
void Combine(std::string& larger, std::string_view smaller, int sign) {
  int carry = 0;
  for (std::size_t i = 0; i < larger.size() && (i < smaller.size() || carry != 0); ++i) {
    char& digit = larger[larger.size() - 1 - i];
    const int other = i < smaller.size() ? smaller[smaller.size() - 1 - i] - '0' : 0;
    const int value = digit - '0' + sign * other + carry;
    carry = value > 9 ? 1 : value < 0 ? -1 : 0;
    digit = static_cast<char>('0' + value - 10 * carry);
  }
  if (carry > 0) larger.insert(0, 1, '1');
}

bool IsSmaller(const std::string& a, const std::string& b) {
  return a.size() != b.size() ? a.size() < b.size() : a < b;
}

void DropLeadingZeros(std::string& digits) {
  digits.erase(0, digits.find_first_not_of('0'));
}

}  // namespace

TDecimal::TDecimal(std::string_view text) {
  std::string_view number = WithoutBlanks(text);
  if (number.starts_with('-') || number.starts_with('+')) {
    negative_ = number.front() == '-';
    number.remove_prefix(1);
  }
  const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
  const auto exponent =
      mark == number.size() ? std::optional<std::int64_t>(0) : Exponent(number.substr(mark + 1));
  number = number.substr(0, mark);
  const std::size_t point = std::min(number.find('.'), number.size());
  digits_ = number.substr(0, point);
  digits_ += number.substr(std::min(point + 1, number.size()));
  if (!exponent || digits_.empty() || !AreDigits(digits_)) {
    throw EConvertError("'" + std::string(text) + "' is not a valid decimal number");
  }
  decimals_ = digits_.size() - point;
  const auto shift = static_cast<std::size_t>(std::abs(*exponent));
  if (*exponent < 0) {
    decimals_ += shift;
  } else {
    const std::size_t moved = std::min(shift, decimals_);
    decimals_ -= moved;
    digits_.append(shift - moved, '0');
  }
  DropLeadingZeros(digits_);
}

std::string TDecimal::Scaled(std::size_t decimals) const {
  return digits_.empty() ? std::string() : digits_ + std::string(decimals - decimals_, '0');
}

TDecimal& TDecimal::operator+=(const TDecimal& other) {
  const std::size_t decimals = std::max(decimals_, other.decimals_);
  std::string larger = Scaled(decimals);
  std::string smaller = other.Scaled(decimals);
  const int sign = negative_ == other.negative_ ? 1 : -1;
  if (IsSmaller(larger, smaller)) {
    std::swap(larger, smaller);
    negative_ = other.negative_;
  }
  Combine(larger, smaller, sign);
  DropLeadingZeros(larger);
  negative_ = negative_ && !larger.empty();
  digits_ = std::move(larger);
  decimals_ = decimals;
  return *this;
}

std::weak_ordering TDecimal::operator<=>(const TDecimal& other) const {
  TDecimal difference = other;
  difference.negative_ = !other.negative_;
  difference += *this;
  if (difference.digits_.empty()) return std::weak_ordering::equivalent;
  return difference.negative_ ? std::weak_ordering::less : std::weak_ordering::greater;
}

std::string TDecimal::ToFixed(std::size_t decimals) const {
  std::string digits = decimals_ <= decimals ? Scaled(decimals) : digits_;
  if (decimals_ > decimals) {
    const std::size_t cut = decimals_ - decimals;
    if (digits.size() < cut) digits.insert(0, cut - digits.size(), '0');
    const std::string rest = digits.substr(digits.size() - cut);
    const std::string half = "5" + std::string(cut - 1, '0');
    digits.resize(digits.size() - cut);
    const bool odd = !digits.empty() && (digits.back() - '0') % 2 != 0;
    if (rest > half || (rest == half && odd)) {
      if (digits.empty()) digits = "0";
      Combine(digits, "1", 1);
    }
  }
  if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
  digits.insert(digits.size() - decimals, 1, '.');
  return (negative_ ? "-" : "") + digits;
}
