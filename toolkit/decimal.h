// Decimal arithmetic for amounts that the user types, the module sums and the bank sends. A list's own sums
// and cells, which are made for many rows at a time, go through decimal_text.h instead.
#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

/// A decimal number without loss, whatever its length: amounts are read, summed and compared digit by digit.
class TDecimal {
 public:
  /// 0.
  TDecimal() = default;
  /// The number that a text means: an optional sign, digits with an optional "." among them, an optional
  /// exponent from -308 to 308, blanks around allowed; no thousands separators. EConvertError for all else.
  explicit TDecimal(std::string_view text);

  /// Adds a number without loss.
  TDecimal& operator+=(const TDecimal& other);
  /// Compares the values; "2.50" and "2.5" are equivalent.
  std::weak_ordering operator<=>(const TDecimal& other) const;

  /// Plain text with so many decimals, at least 1, rounded to the nearest; a tie goes to the even digit.
  std::string ToFixed(std::size_t decimals) const;

 private:
  /// The digits with so many decimals, at least as many as there are.
  std::string Scaled(std::size_t decimals) const;

  bool negative_ = false;
  std::string digits_;        // whole part and decimals without leading zeros; empty: 0
  std::size_t decimals_ = 0;  // those of them after the point; may be more than there are digits
};
