#include "framework/rules/date_range.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

#include "toolkit/conversion.h"

namespace norvik {
namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month_day;

struct DateParts {
  int year;
  int month;
  int day;
};

DateParts TakeApart(const std::string& date) {
  const auto part = [&date](std::size_t from, std::size_t length) {
    const int number = StrToInt(from < date.size() ? date.substr(from, length) : std::string());
    if (date[from] == '-') throw EConvertError("'" + date + "' is not a date");
    return number;
  };
  return {part(0, 4), part(4, 2), part(6, 2)};
}

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string Text(year_month_day date) {
  const std::string year = std::to_string(static_cast<int>(date.year()));
  return std::string(4 - std::min<std::size_t>(4, year.size()), '0') + year +
         TwoDigits(static_cast<int>(static_cast<unsigned>(date.month()))) +
         TwoDigits(static_cast<int>(static_cast<unsigned>(date.day())));
}

year_month_day Encode(DateParts parts) {
  const year_month_day date{std::chrono::year{parts.year},
                            std::chrono::month{static_cast<unsigned>(parts.month)},
                            std::chrono::day{static_cast<unsigned>(parts.day)}};
  if (parts.year < 1 || !date.ok()) throw EConvertError("Invalid date");
  return date;
}

int DaysInMonth(int year, int month) {
  const std::chrono::year_month_day_last last{
      std::chrono::year{year}, std::chrono::month_day_last{std::chrono::month{static_cast<unsigned>(month)}}};
  return static_cast<int>(static_cast<unsigned>(last.day()));
}

}  // namespace

DateRange QuickRange(QuickDate item, const std::string& today) {
  const year_month_day day = Encode(TakeApart(today));
  const std::chrono::year_month month = day.year() / day.month();
  switch (item) {
    case QuickDate::kToday:
      return {Text(day), Text(day)};
    case QuickDate::kThisWeek: {
      const unsigned sinceMonday = std::chrono::weekday(sys_days(day)).iso_encoding() - 1;
      return {Text(sys_days(day) - days(sinceMonday)), Text(day)};
    }
    case QuickDate::kThisMonth:
      return {Text(month / 1), Text(day)};
    case QuickDate::kLastMonth: {
      const std::chrono::year_month previous = month - months(1);
      return {Text(previous / 1), Text(previous / std::chrono::last)};
    }
    case QuickDate::kOther:
      break;
  }
  return {};
}

QuickDate QuickDateOf(const DateRange& range, QuickDate shown, const std::string& today) {
  const DateRange expected = QuickRange(shown, today);
  return !expected.start.empty() && range == expected ? shown : QuickDate::kOther;
}

std::string NotAfter(const std::string& date, const std::string& today) {
  const auto given = ParseInteger(date);
  const auto limit = ParseInteger(today);
  return given && limit && *given > *limit ? today : date;
}

std::string NextDayDate(const std::string& date) {
  DateParts parts = TakeApart(date);
  if (parts.month >= 1 && parts.month <= 12) {
    const int last = DaysInMonth(parts.year, parts.month);
    if (parts.day < last) {
      ++parts.day;
    } else if (parts.day == last) {
      parts.day = 1;
      if (++parts.month > 12) parts = {parts.year + 1, 1, 1};
    }
  }
  return std::to_string(parts.year) + TwoDigits(parts.month) + TwoDigits(parts.day);
}

std::string NextMonthDate(const std::string& date) {
  constexpr int kJanuary = 1;
  constexpr int kFebruary = 2;
  constexpr int kAugust = 8;
  DateParts parts = TakeApart(date);
  if (++parts.month == 13) parts = {parts.year + 1, kJanuary, parts.day};
  if (parts.month == kFebruary && parts.day >= 29) parts.day = DaysInMonth(parts.year, kFebruary);
  // Of the months that follow one with 31 days only these two have as many.
  if (parts.day == 31 && parts.month != kJanuary && parts.month != kAugust) parts.day = 30;
  return Text(Encode(parts));
}

int DaysBetweenDates(const std::string& a, const std::string& b) {
  if (a.size() != 8 || b.size() != 8) return -1;
  const auto between = sys_days(Encode(TakeApart(a))) - sys_days(Encode(TakeApart(b)));
  return std::abs(static_cast<int>(between.count()));
}

}  // namespace norvik
