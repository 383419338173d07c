// A clock that runs on from one reading of a reference time.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>

namespace corvane {

// Times are milliseconds since 1970-01-01 00:00:00 UTC; dates and times of day are in local time. The running
// part is the 32-bit millisecond counter, so a reading is exact within 49.7 days of setTime.
class TSysDateTime {
 public:
  // Starts from the system clock.
  TSysDateTime();

  // Starts afresh from `millis`.
  void setTime(std::int64_t millis);
  // The time set last and what has passed since; at most the greatest number of 64 bits.
  std::int64_t getMillis() const;

  // Four-digit year; month 1 to 12; day 1 to 31.
  int getYear() const;
  int getMonth() const;
  int getDay() const;

  // "YYYYMMDDHHMMSS", its first 8 characters, and its last 6.
  std::string getDateTime() const;
  std::string getDate() const;
  std::string getTime() const;

 private:
  std::tm Local() const;

  std::int64_t base_ = 0;
  std::uint32_t tickBase_ = 0;
};

}  // namespace corvane
