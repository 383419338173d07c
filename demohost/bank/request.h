#pragma once

#include <map>
#include <string>
#include <string_view>

#include "data/corvane.h"

namespace demohost {

// Fields of a request or of one row of it, by name, in UTF-8.
using Fields = std::map<std::string, std::string>;

// The top-level fields of a request.
Fields FieldsOf(const corvane::CorvaneStream& request);
Fields FieldsOf(const corvane::Row& row);

// The value of a field. Throws Refused with kMissingField where it is missing.
const std::string& Required(const Fields& fields, std::string_view name);

}  // namespace demohost
