#include "repository/condition_checks.h"

#include "dialogs/message_keys.h"
#include "dialogs/validators.h"
#include "framework/rules/amount_text.h"
#include "framework/rules/date_range.h"
#include "toolkit/decimal.h"

namespace norvik {
namespace {

constexpr std::size_t kAccountsInRow = 20;

bool Malformed(const std::string& date) {
  return !date.empty() && !CheckDate(date).empty();
}

void Normalize(std::string& amount) {
  const std::string typed = amount;
  NormalizeAmountText(typed, amount);
}

}  // namespace

DateRangeFault CheckDateRange(const DateRangeRule& rule, const std::string& start, const std::string& end) {
  const bool compulsory = rule.tooLong != nullptr;
  if (compulsory && start.empty()) return {rule.startMissing};
  if (Malformed(start)) return {rule.startMalformed};
  if (compulsory && end.empty()) return {rule.endMissing};
  if (Malformed(end)) return {rule.endMalformed};
  if (!start.empty() && end.empty()) return {rule.endMissing};
  if (start.empty() && !end.empty()) return {rule.startMissing};
  if (end < start) return {rule.reversed, true};
  if (compulsory && DaysBetweenDates(start, end) > kMaxPeriodDays) return {rule.tooLong, true};
  return {};
}

AmountRangeFault CheckAmounts(std::string& minimum, std::string& maximum) {
  if (minimum.empty() && maximum.empty()) return {};
  if (minimum.empty()) {
    Normalize(maximum);
    return {message::kMinimumMissing};
  }
  Normalize(minimum);
  if (maximum.empty()) return {message::kMaximumMissing};
  Normalize(maximum);
  const TDecimal upper(maximum);
  if (upper <= TDecimal()) return {message::kMaximumNotPositive, true};
  if (TDecimal(minimum) > upper) return {message::kMinimumAboveMaximum};
  return {};
}

std::vector<std::string> AccountBatches(const std::vector<std::string>& accounts) {
  std::vector<std::string> batches;
  for (std::size_t i = 0; i < accounts.size(); ++i) {
    if (i % kAccountsInRow == 0) {
      batches.push_back(accounts[i]);
    } else {
      batches.back() += "|" + accounts[i];
    }
  }
  return batches;
}

}  // namespace norvik
