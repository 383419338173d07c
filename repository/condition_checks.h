// The checks of conditions that need no screen. A fault is the key of the message that the user gets.
#pragma once

#include <string>
#include <vector>

namespace norvik {

// The messages of a pair of dates.
struct DateRangeRule {
  const char* startMissing;
  const char* endMissing;
  const char* startMalformed;
  const char* endMalformed;
  const char* reversed;
  // A compulsory range: both dates must be given, and lie less than kLongestPeriod days apart; `tooLong` says
  // they don't. Otherwise null, and both may be empty; an end without a start lacks its start.
  const char* tooLong;
};

// 180 days pass, 181 don't.
inline constexpr int kLongestPeriod = 181;

struct DateRangeFault {
  std::string messageKey;  // empty: the range passes
  bool emptiesDates = false;
};

// The first fault of a range, in the order: start, end, both together.
DateRangeFault CheckDateRange(const DateRangeRule& rule, const std::string& start, const std::string& end);

struct AmountRangeFault {
  std::string messageKey;  // empty: the range passes
  bool emptiesMaximum = false;
};

// The first fault of a range of amounts: both or none must be given, the maximum above 0 and not below the
// minimum. The amounts looked at are brought into their normal form in place. A text that is no number raises
// the toolkit's EConvertError.
AmountRangeFault CheckAmounts(std::string& minimum, std::string& maximum);

// Account numbers joined with "|" in rows of at most 20; the last row holds what is left, and no row is
// empty.
std::vector<std::string> AccountBatches(const std::vector<std::string>& accounts);

}  // namespace norvik
