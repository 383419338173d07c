// Days of the calendar as the bank writes them, and the bank's clock. Used wherever a date is read or
// written; knows no time zone but this machine's.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace demohost {

/// A day of the calendar, without a time of day.
using Day = std::chrono::sys_days;

/// The day as eight digits, "yyyymmdd".
std::string DayText(Day day);

/// The day that eight digits name; nothing for any other text and for a day that the calendar doesn't have.
std::optional<Day> DayOf(std::string_view text);

/// The bank's clock: a fixed day with this machine's time of day, so that the same request finds the same
/// bills whenever the demonstration runs.
class BankClock {
 public:
  /// A clock whose day is always `today`.
  explicit BankClock(Day today) : today_(today) {}

  /// That day.
  Day Today() const { return today_; }
  /// Milliseconds since 1970-01-01 00:00:00 UTC of the present time of day, local time, on the bank's day.
  std::int64_t Milliseconds() const;

 private:
  Day today_;
};

/// The bank's day unless another is chosen at the start. The dates of its bills are around this day.
inline constexpr Day kBankDay = std::chrono::sys_days(std::chrono::year(2026) / 6 / 15);

}  // namespace demohost
