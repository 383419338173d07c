#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace demohost {

using Day = std::chrono::sys_days;

// The day as eight digits, "yyyymmdd".
std::string DayText(Day day);

// The day that eight digits name; nothing for any other text and for a day that the calendar doesn't have.
std::optional<Day> DayOf(std::string_view text);

}  // namespace demohost
