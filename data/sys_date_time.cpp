#include "data/sys_date_time.h"

#include <chrono>
#include <limits>

#include "platform/ticks.h"

namespace corvane {
namespace {

// A number below 100 in two digits.
std::string twoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

TSysDateTime::TSysDateTime() {
  using std::chrono::duration_cast;
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  setTime(duration_cast<std::chrono::milliseconds>(now).count());
}

void TSysDateTime::setTime(std::int64_t millis) {
  base_ = millis;
  tickBase_ = norvik::TickCount();
}

std::int64_t TSysDateTime::getMillis() const {
  constexpr std::int64_t kLast = std::numeric_limits<std::int64_t>::max();
  const std::int64_t passed = static_cast<std::uint32_t>(norvik::TickCount() - tickBase_);
  return base_ > kLast - passed ? kLast : base_ + passed;
}

std::tm TSysDateTime::local() const {
  const std::time_t seconds = getMillis() / 1000;
  std::tm parts{};
  localtime_r(&seconds, &parts);
  return parts;
}

int TSysDateTime::getYear() const {
  return local().tm_year + 1900;
}

int TSysDateTime::getMonth() const {
  return local().tm_mon + 1;
}

int TSysDateTime::getDay() const {
  return local().tm_mday;
}

std::string TSysDateTime::getDateTime() const {
  const std::tm parts = local();
  return std::to_string(parts.tm_year + 1900) + twoDigits(parts.tm_mon + 1) + twoDigits(parts.tm_mday) +
         twoDigits(parts.tm_hour) + twoDigits(parts.tm_min) + twoDigits(parts.tm_sec);
}

std::string TSysDateTime::getDate() const {
  return getDateTime().substr(0, 8);
}

std::string TSysDateTime::getTime() const {
  return getDateTime().substr(8, 6);
}

}  // namespace corvane
