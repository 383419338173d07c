// The checks of conditions that need no screen: dates, amounts, and the accounts of a request. The screens
// run them before a query. A fault is the key of the message that the user sees; showing it is the screen's.
#pragma once

#include <string>
#include <vector>

namespace norvik {

/// The messages of a pair of dates.
struct DateRangeRule {
  const char* startMissing;
  const char* endMissing;
  const char* startMalformed;
  const char* endMalformed;
  const char* reversed;
  /// A compulsory range: both dates must be given, and be at most kMaxPeriodDays days apart; `tooLong` is the
  /// message if they are not. Otherwise null, and both may be empty; for an end without a start, the start is
  /// missing.
  const char* tooLong;
};

/// The days between the two dates of a compulsory range, at most.
inline constexpr int kMaxPeriodDays = 180;

/// A fault of a range, and whether it empties both dates.
struct DateRangeFault {
  std::string messageKey;  ///< empty: the range passes
  bool emptiesDates = false;
};

/// The first fault of a range, in the order: start, end, both together.
DateRangeFault CheckDateRange(const DateRangeRule& rule, const std::string& start, const std::string& end);

/// A fault of a range of amounts, and whether it empties the maximum.
struct AmountRangeFault {
  std::string messageKey;  ///< empty: the range passes
  bool emptiesMaximum = false;
};

/// The first fault of a range of amounts: both or none must be given, the maximum above 0 and not below the
/// minimum. The amounts that are compared are converted to their normal form in place. A text that is no
/// number raises the toolkit's EConvertError.
AmountRangeFault CheckAmounts(std::string& minimum, std::string& maximum);

/// Account numbers joined with "|" in rows of at most 20; the last row holds what is left, and no row is
/// empty.
std::vector<std::string> AccountBatches(const std::vector<std::string>& accounts);

}  // namespace norvik
