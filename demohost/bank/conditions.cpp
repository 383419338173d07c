#include "demohost/bank/conditions.h"

#include <algorithm>
#include <optional>

#include "demohost/bank/amount.h"
#include "demohost/calendar.h"
#include "demohost/refusals.h"
#include "demohost/words.h"

namespace demohost {
namespace {

// "AC00" asks for bills of every type.
constexpr std::string_view kEveryType = "AC00";
// From its first to its last day a range may have this many days, where the bank limits it at all.
constexpr int kMaxRangeDays = 180;

void AddTest(Where& where, std::string_view column, std::string_view test,
             std::variant<std::string, std::int64_t> value) {
  where.sql += " AND ";
  where.sql += column;
  where.sql += test;
  where.values.push_back(std::move(value));
}

void CheckCode(const Condition& condition, std::string_view code, const IsCode& isCode) {
  if (!isCode(condition.dictionary, code)) throw Refused(refusal::kUnknownCode, std::string(condition.field));
}

std::string CheckedDay(const Condition& condition, const std::string& value) {
  if (!DayOf(value)) throw Refused(refusal::kBadDate, std::string(condition.field));
  return value;
}

std::int64_t CheckedCents(const Condition& condition, const std::string& value) {
  const std::optional<std::int64_t> cents = CentsOf(value);
  if (!cents) throw Refused(refusal::kBadAmount, std::string(condition.field));
  return *cents;
}

void AddCondition(Where& where, const Condition& condition, const std::string& value, const IsCode& isCode) {
  switch (condition.kind) {
    case ConditionKind::kEqual:
      return AddTest(where, condition.column, " = ?", value);
    case ConditionKind::kContains:
      return AddTest(where, "instr(" + std::string(condition.column) + ", ?)", " > 0", value);
    case ConditionKind::kCode:
      CheckCode(condition, value, isCode);
      return AddTest(where, condition.column, " = ?", value);
    case ConditionKind::kCodes: {
      const std::vector<std::string> codes = Split(value, '|');
      for (const std::string& code : codes) CheckCode(condition, code, isCode);
      return AddOneOf(where, condition.column, codes);
    }
    case ConditionKind::kDateFrom:
      return AddTest(where, condition.column, " >= ?", CheckedDay(condition, value));
    case ConditionKind::kDateTo:
      return AddTest(where, condition.column, " <= ?", CheckedDay(condition, value));
    case ConditionKind::kAmountFrom:
      return AddTest(where, condition.column, " >= ?", CheckedCents(condition, value));
    case ConditionKind::kAmountTo:
      return AddTest(where, condition.column, " <= ?", CheckedCents(condition, value));
  }
}

// Both values are of one column, and each of them has been found good.
bool Reversed(ConditionKind from, const std::string& start, const std::string& end) {
  if (start.empty() || end.empty()) return false;
  return from == ConditionKind::kAmountFrom ? *CentsOf(end) < *CentsOf(start) : end < start;
}

void CheckRanges(const Business& business, const Fields& fields) {
  for (std::size_t at = 0; at + 1 < business.conditions.size(); ++at) {
    const Condition& from = business.conditions[at];
    const bool range = from.kind == ConditionKind::kDateFrom || from.kind == ConditionKind::kAmountFrom;
    // In the table the end of a range follows its start.
    const Condition& to = business.conditions[at + 1];
    if (range && Reversed(from.kind, Required(fields, from.field), Required(fields, to.field))) {
      throw Refused(refusal::kReversedRange, std::string(to.field));
    }
  }
}

void CheckLimitedRange(const Business& business, const Fields& fields) {
  if (business.limitedFrom.empty()) return;
  const std::string& start = Required(fields, business.limitedFrom);
  const std::string& end = Required(fields, business.limitedTo);
  if (start.empty() && end.empty()) return;
  if (start.empty()) throw Refused(refusal::kMissingDate, std::string(business.limitedFrom));
  if (end.empty()) throw Refused(refusal::kMissingDate, std::string(business.limitedTo));
  if ((*DayOf(end) - *DayOf(start)).count() > kMaxRangeDays) {
    throw Refused(refusal::kLongRange, std::string(business.limitedTo));
  }
}

}  // namespace

void AddOneOf(Where& where, std::string_view column, std::span<const std::string> values) {
  where.sql += " AND ";
  where.sql += column;
  where.sql += " IN (";
  for (std::size_t at = 0; at < values.size(); ++at) {
    where.sql += at == 0 ? "?" : ",?";
    where.values.emplace_back(values[at]);
  }
  where.sql += ")";
}

Where BuildWhere(const Business& business, const Fields& fields, const IsCode& isCode) {
  Where where;
  for (const Condition& condition : business.conditions) {
    const std::string& value = Required(fields, condition.field);
    const bool any = value.empty() || (condition.field == "BILLTYP" && value == kEveryType);
    if (any) continue;
    if (condition.column.empty()) throw Refused(refusal::kForeignCondition, std::string(condition.field));
    AddCondition(where, condition, value, isCode);
  }
  CheckRanges(business, fields);
  CheckLimitedRange(business, fields);
  return where;
}

void BindValues(Statement& statement, const Where& where) {
  int parameter = 0;
  for (const auto& value : where.values) {
    ++parameter;
    std::visit([&](const auto& held) { statement.Bind(parameter, held); }, value);
  }
}

}  // namespace demohost
