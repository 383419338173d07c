// The bank's side of a message: a request's fields read into UTF-8, and the rows of a query put into an
// answer. Used by whatever answers a transaction; which fields there are and what they mean is the business
// of those.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "data/corvane.h"
#include "demohost/bank/database.h"

namespace demohost {

/// Fields of a request or of one row of it, by name, in UTF-8.
using Fields = std::map<std::string, std::string>;

/// The top-level fields of a request.
Fields FieldsOf(const corvane::CorvaneStream& request);

/// The fields of a row.
Fields FieldsOf(const corvane::Row& row);

/// The value of a field. Throws Refused with kMissingField where it is missing.
const std::string& Required(const Fields& fields, std::string_view name);

/// A row in the code page, of fields in UTF-8.
corvane::Row RowOf(std::initializer_list<std::pair<const char*, std::string>> fields);

/// An empty list under the name that the rows of an answer have.
corvane::List EmptyResult();

/// The rows that the statement finds, as such a list: columns under their names, texts in the code page.
corvane::List ResultList(Statement& statement);

/// An answer without a field or a list.
corvane::CorvaneStream EmptyAnswer();

/// An answer with the list, and the number of its rows in TOTALNM.
corvane::CorvaneStream Answer(corvane::List list);

}  // namespace demohost
