#include "demohost/calendar.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <ctime>

namespace demohost {

std::string DayText(Day day) {
  const std::chrono::year_month_day date{day};
  char text[16];
  std::snprintf(text, sizeof text, "%04d%02u%02u", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return text;
}

std::optional<Day> DayOf(std::string_view text) {
  const auto digit = [](char c) { return c >= '0' && c <= '9'; };
  if (text.size() != 8 || !std::all_of(text.begin(), text.end(), digit)) return std::nullopt;
  const auto number = [text](std::size_t at, std::size_t count) {
    unsigned value = 0;
    std::from_chars(text.data() + at, text.data() + at + count, value);
    return value;
  };
  const std::chrono::year_month_day date{std::chrono::year{static_cast<int>(number(0, 4))},
                                         std::chrono::month{number(4, 2)}, std::chrono::day{number(6, 2)}};
  if (!date.ok()) return std::nullopt;
  return Day{date};
}

std::int64_t BankClock::Milliseconds() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const std::chrono::year_month_day date{today_};
  local.tm_year = static_cast<int>(date.year()) - 1900;
  local.tm_mon = static_cast<int>(static_cast<unsigned>(date.month())) - 1;
  local.tm_mday = static_cast<int>(static_cast<unsigned>(date.day()));
  local.tm_isdst = -1;
  return static_cast<std::int64_t>(std::mktime(&local)) * 1000;
}

}  // namespace demohost
