#include "demohost/bank_clock.h"

#include <ctime>

namespace demohost {

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
