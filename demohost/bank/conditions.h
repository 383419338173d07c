// Makes the WHERE of a query from a request's fields by the conditions of its business, and refuses the
// values that the bank doesn't take. Used by the bank alone; runs no statement.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "demohost/bank/business.h"
#include "demohost/bank/database.h"
#include "demohost/bank/messages.h"

namespace demohost {

/// The conditions of a statement, with their values in the order of the question marks.
struct Where {
  std::string sql;  ///< " AND ..." for each condition, to follow a condition
  std::vector<std::variant<std::string, std::int64_t>> values;
};

/// True for a code that the bank's dictionary of that name has.
using IsCode = std::function<bool(std::string_view dictionary, std::string_view code)>;

/// The conditions of a request of this business. `fields` holds every field of the request in UTF-8. Throws
/// Refused, with the field's name as detail, for a missing field, a value that its kind doesn't take, a range
/// that ends before its start, and a condition that the business doesn't have.
Where BuildWhere(const Business& business, const Fields& fields, const IsCode& isCode);

/// Adds "AND <column> IN (...)" for the values.
void AddOneOf(Where& where, std::string_view column, std::span<const std::string> values);

/// Binds the values from the first parameter on.
void BindValues(Statement& statement, const Where& where);

}  // namespace demohost
