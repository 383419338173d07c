#include "toolkit/conversion.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <utility>

namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

const sys_days kDayZero = year(1899) / 12 / 30;
constexpr std::int64_t kMillisecondsInDay = 86'400'000;

std::int64_t Milliseconds(TDateTime value) {
  return static_cast<std::int64_t>(std::llround(value * static_cast<double>(kMillisecondsInDay)));
}

std::int64_t FloorDays(std::int64_t milliseconds) {
  return (milliseconds - (milliseconds < 0 ? kMillisecondsInDay - 1 : 0)) / kMillisecondsInDay;
}

void AppendPadded(std::string& text, int number, std::size_t digits) {
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, "%0*d", static_cast<int>(digits), number);
  text += buffer;
}

}  // namespace

std::string_view WithoutBlanks(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

std::optional<std::int64_t> ParseInteger(std::string_view text) {
  std::int64_t value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end) return std::nullopt;
  return value;
}

int StrToInt(std::string_view text) {
  const std::optional<std::int64_t> value = ParseInteger(text);
  if (!value || !std::in_range<int>(*value)) {
    throw EConvertError("'" + std::string(text) + "' is not a valid integer value");
  }
  return static_cast<int>(*value);
}

int StrToIntDef(std::string_view text, int otherwise) {
  const std::int64_t value = ParseInteger(text).value_or(otherwise);
  return std::in_range<int>(value) ? static_cast<int>(value) : otherwise;
}

std::string IntToStr(int value) {
  return std::to_string(value);
}

TDateTime EncodeDate(int y, int m, int d) {
  const year_month_day date(year(y), month(static_cast<unsigned>(m)), day(static_cast<unsigned>(d)));
  if (y < 1 || y > 9999 || m < 1 || d < 1 || d > 31 || !date.ok()) {
    throw EConvertError("year " + IntToStr(y) + ", month " + IntToStr(m) + ", day " + IntToStr(d) +
                        " is not a date");
  }
  return static_cast<double>((sys_days(date) - kDayZero).count());
}

TDateTime EncodeTime(int hour, int minute, int second, int millisecond) {
  const auto within = [](int value, int limit) { return value >= 0 && value < limit; };
  if (!within(hour, 24) || !within(minute, 60) || !within(second, 60) || !within(millisecond, 1000)) {
    throw EConvertError("hour " + IntToStr(hour) + ", minute " + IntToStr(minute) + ", second " +
                        IntToStr(second) + " is not a time");
  }
  const std::int64_t total = ((hour * 60LL + minute) * 60 + second) * 1000 + millisecond;
  return static_cast<double>(total) / static_cast<double>(kMillisecondsInDay);
}

void DecodeDate(TDateTime value, int& y, int& m, int& d) {
  const year_month_day date(kDayZero + days(FloorDays(Milliseconds(value))));
  y = static_cast<int>(date.year());
  m = static_cast<int>(static_cast<unsigned>(date.month()));
  d = static_cast<int>(static_cast<unsigned>(date.day()));
}

void DecodeTime(TDateTime value, int& hour, int& minute, int& second, int& millisecond) {
  const std::int64_t total = Milliseconds(value);
  const std::int64_t rest = total - FloorDays(total) * kMillisecondsInDay;
  hour = static_cast<int>(rest / 3'600'000);
  minute = static_cast<int>(rest / 60'000 % 60);
  second = static_cast<int>(rest / 1000 % 60);
  millisecond = static_cast<int>(rest % 1000);
}

TDateTime Now() {
  std::timespec now{};
  std::timespec_get(&now, TIME_UTC);
  std::tm local{};
  localtime_r(&now.tv_sec, &local);
  // A leap second counts as the one before it.
  const int second = local.tm_sec > 59 ? 59 : local.tm_sec;
  return EncodeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
         EncodeTime(local.tm_hour, local.tm_min, second, static_cast<int>(now.tv_nsec / 1'000'000));
}

TDateTime IncSecond(TDateTime value, int seconds) {
  return static_cast<double>(Milliseconds(value) + seconds * 1000LL) /
         static_cast<double>(kMillisecondsInDay);
}

std::string FormatDateTime(std::string_view pattern, TDateTime value) {
  int y = 0, m = 0, d = 0, hour = 0, minute = 0, second = 0, millisecond = 0;
  DecodeDate(value, y, m, d);
  DecodeTime(value, hour, minute, second, millisecond);
  std::string text;
  bool afterHour = false;
  for (std::size_t i = 0; i < pattern.size();) {
    const char letter = pattern[i];
    std::size_t run = 1;
    while (i + run < pattern.size() && pattern[i + run] == letter) ++run;
    switch (letter) {
      case 'y':
        AppendPadded(text, run <= 2 ? y % 100 : y, run);
        break;
      case 'm':
        AppendPadded(text, afterHour ? minute : m, run);
        break;
      case 'd':
        AppendPadded(text, d, run);
        break;
      case 'h':
        AppendPadded(text, hour, run);
        break;
      case 'n':
        AppendPadded(text, minute, run);
        break;
      case 's':
        AppendPadded(text, second, run);
        break;
      default:
        text.append(pattern.substr(i, run));
    }
    if (std::string_view("ymdhns").find(letter) != std::string_view::npos) afterHour = letter == 'h';
    i += run;
  }
  return text;
}

std::string DateTimeToStr(TDateTime value) {
  return FormatDateTime("yyyy-mm-dd hh:nn:ss", value);
}
