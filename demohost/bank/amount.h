#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace demohost {

// The hundredths of an amount: up to 13 digits, and behind a point one or two more. Nothing for any other
// text, a sign and thousands separators included.
std::optional<std::int64_t> CentsOf(std::string_view text);

}  // namespace demohost
