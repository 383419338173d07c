#pragma once

#include <string>

namespace demohost {

// The SQL that makes the bank's empty tables. Columns bear the names of the record fields that they hold.
std::string SchemaSql();

// Rises when the tables or what fills them change, so that banks made before are made anew.
inline constexpr int kSchemaVersion = 3;

}  // namespace demohost
