// Amounts of money, which the bank holds as hundredths and a message carries as text. Used by the conditions,
// the queries and the orders; knows no currency.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace demohost {

/// The hundredths of an amount: up to 13 digits, and after a point one or two more. Nothing for any other
/// text, a sign and thousands separators included.
std::optional<std::int64_t> CentsOf(std::string_view text);

/// The amount of hundredths that aren't negative, with a point and two digits.
std::string AmountText(std::int64_t cents);

/// The same as an SQL expression over the bill `b`.
inline constexpr const char* kAmountSql = "printf('%d.%02d', b.CENTS / 100, b.CENTS % 100)";

}  // namespace demohost
