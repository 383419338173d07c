#pragma once

#include <cstdint>

#include "demohost/calendar.h"

namespace demohost {

// The bank's clock: a fixed day with this machine's time of day, so that the same requests meet the same
// bills whenever the demonstration runs.
class BankClock {
 public:
  explicit BankClock(Day today) : today_(today) {}

  Day Today() const { return today_; }
  // Milliseconds since 1970-01-01 00:00:00 UTC of the present time of day, local time, on the bank's day.
  std::int64_t Milliseconds() const;

 private:
  Day today_;
};

// The bank's day where the start gives no other. Its bills lie around this day.
inline constexpr Day kBankDay = std::chrono::sys_days(std::chrono::year(2026) / 6 / 15);

}  // namespace demohost
