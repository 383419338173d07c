// The three businesses that can be queried, as data: which tables, columns and conditions each has. The
// table in business.cpp is all there is to a business; conditions.h makes a statement of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace demohost {

/// What a condition of a request does with its value. An empty value never narrows a query.
enum class ConditionKind {
  kEqual,       ///< the column holds the value
  kContains,    ///< the column holds the value somewhere in it
  kCode,        ///< the column holds the code, which the dictionary must have
  kCodes,       ///< the column holds one of the codes joined with "|"
  kDateFrom,    ///< the column's day is this one or later
  kDateTo,      ///< the column's day is this one or earlier
  kAmountFrom,  ///< the column's hundredths are this amount or more
  kAmountTo,    ///< the column's hundredths are this amount or less
};

/// One field of a query's request. Where `column` is empty, the business has no such condition, and the
/// request's value must be empty.
struct Condition {
  std::string_view field;
  ConditionKind kind;
  std::string_view column;           ///< an expression over the tables of the business
  std::string_view dictionary = {};  ///< of a code
};

/// What "EBBADQDB" answers for one business code.
struct Business {
  std::string_view code;
  std::string columns;                ///< the list after SELECT, in the order of the answer
  std::string tables;                 ///< the joins after FROM
  std::string_view order;             ///< what the answer is sorted by
  std::vector<Condition> conditions;  ///< every field that a request must have
  /// The fields of a range that is given with both ends or not at all, and spans at most 180 days; empty
  /// where there is none.
  std::string_view limitedFrom;
  std::string_view limitedTo;
};

/// The business of that code, or null.
const Business* FindBusiness(std::string_view code);

}  // namespace demohost
