// Dates as the screens hold them, eight digits "yyyymmdd", and the ranges of the quick date choice. An
// operation that is given anything but digits raises the toolkit's EConvertError; so does one that has to
// encode an impossible day.
#pragma once

#include <string>

namespace norvik {

/// The items of a quick date choice, in the order of the radio group.
enum class QuickDate { kToday = 0, kThisWeek = 1, kThisMonth = 2, kLastMonth = 3, kOther = 4 };

/// First and last day, both included; two empty texts where there is no range.
struct DateRange {
  std::string start;
  std::string end;
  bool operator==(const DateRange&) const = default;
};

/// The range of a quick choice on the bank's day `today`; empty for kOther and for any number that is no
/// item. A week starts on Monday; the ranges of this week and this month end with today.
DateRange QuickRange(QuickDate item, const std::string& today);

/// The item that the choice has to show for a range edited by hand: `shown`, if it is one of the four ranges
/// and the range is still that one, otherwise kOther. A range that happens to match another item does not
/// select it.
QuickDate QuickDateOf(const DateRange& range, QuickDate shown, const std::string& today);

/// `date`, or `today` if `date` is later by number; an empty text and one that is no number are unchanged.
std::string NotAfter(const std::string& date, const std::string& today);

/// The following calendar day. A month outside 1 to 12 leaves the date as it is.
std::string NextDayDate(const std::string& date);

/// The same day of the following month, or that month's last day if it is shorter; a day 31 becomes 30 in
/// every month except January and August, even if the date given is none.
std::string NextMonthDate(const std::string& date);

/// The days between two dates, whichever is later; -1 when one of them is not 8 bytes long.
int DaysBetweenDates(const std::string& a, const std::string& b);

}  // namespace norvik
