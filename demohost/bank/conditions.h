#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "demohost/bank/database.h"
#include "demohost/bank/request.h"

namespace demohost {

// What a condition of a request does with its value. An empty value never narrows a query.
enum class ConditionKind {
  kEqual,       // the column holds the value
  kContains,    // the column holds the value somewhere in it
  kCode,        // the column holds the code, which must stand in the dictionary
  kCodes,       // the column holds one of the codes joined with "|"
  kDateFrom,    // the column's day is this one or later
  kDateTo,      // the column's day is this one or earlier
  kAmountFrom,  // the column's hundredths are this amount or more
  kAmountTo,    // the column's hundredths are this amount or less
};

// One field of a query's request. Where `column` is empty, the business has no such condition and its value
// must be empty.
struct Condition {
  std::string_view field;
  ConditionKind kind;
  std::string_view column;
  std::string_view dictionary = {};
};

// One business code: what "EBBADQDB" answers for it.
struct Business {
  std::string_view code;
  std::string columns;  // what stands between SELECT and FROM, in the order of the answer
  std::string tables;   // what stands behind FROM
  std::string_view order;
  std::vector<Condition> conditions;
  std::string_view limitedFrom, limited_to;  // a range that must be whole and under 181 days, or empty
};

// The business of that code, or null.
const Business* FindBusiness(std::string_view code);

// The part of a statement that narrows it, with its values in the order of the marks.
struct Where {
  std::string sql;
  std::vector<std::variant<std::string, std::int64_t>> values;
};

using IsCode = std::function<bool(std::string_view dictionary, std::string_view code)>;

// The conditions of a request of this business. `fields` holds every field of the request in UTF-8. Throws
// Refused for a missing field, a value that its kind doesn't take, a range that ends before its start and a
// condition that the business doesn't have; the detail is the field's name.
Where BuildWhere(const Business& business, const Fields& fields, const IsCode& isCode);

// Adds "AND <column> IN (...)" for the values.
void AddOneOf(Where& where, std::string_view column, std::span<const std::string> values);

// Binds the values from the first parameter on.
void BindValues(Statement& statement, const Where& where);

}  // namespace demohost
