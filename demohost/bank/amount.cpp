#include "demohost/bank/amount.h"

namespace demohost {

std::optional<std::int64_t> CentsOf(std::string_view text) {
  const std::size_t point = text.find('.');
  const std::string_view whole = text.substr(0, point);
  const std::string_view part = point == std::string_view::npos ? "0" : text.substr(point + 1);
  if (whole.empty() || whole.size() > 13 || part.empty() || part.size() > 2) return std::nullopt;
  std::int64_t cents = 0;
  for (const std::string_view digits : {whole, part}) {
    for (const char digit : digits) {
      if (digit < '0' || digit > '9') return std::nullopt;
      cents = cents * 10 + (digit - '0');
    }
  }
  return part.size() == 1 ? cents * 10 : cents;
}

std::string AmountText(std::int64_t cents) {
  const std::string part = std::to_string(cents % 100);
  return std::to_string(cents / 100) + "." + (part.size() == 1 ? "0" : "") + part;
}

}  // namespace demohost
