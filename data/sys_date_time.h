// A clock that runs on from one reading of a reference time.
//
// For the bank's time: the host gives it once, and the clock goes on by the system's millisecond counter,
// which nobody sets. It knows no time zone but the local one.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>

#include "data/export.h"

namespace corvane {

/// Times are milliseconds since 1970-01-01 00:00:00 UTC; dates and times of day are in local time. The
/// running part is the 32-bit millisecond counter, so a reading is exact within 49.7 days of setTime.
class CORVANE_EXPORT TSysDateTime {
 public:
  /// Starts from the system clock.
  TSysDateTime();

  /// Starts afresh from `millis`.
  void setTime(std::int64_t millis);
  /// The time set last and what has passed since; at most the maximum of 64 bits.
  std::int64_t getMillis() const;

  /// The year, as in 2024.
  int getYear() const;
  /// The month, 1 to 12.
  int getMonth() const;
  /// The day of the month, 1 to 31.
  int getDay() const;

  /// "YYYYMMDDHHMMSS".
  std::string getDateTime() const;
  /// "YYYYMMDD".
  std::string getDate() const;
  /// "HHMMSS".
  std::string getTime() const;

 private:
  std::tm local() const;

  std::int64_t base_ = 0;
  std::uint32_t tickBase_ = 0;
};

}  // namespace corvane
