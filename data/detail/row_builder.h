// Building rows one after the other, as a text brings them.
//
// For the handlers of data/xml_handlers.h. It makes the rows of one list share their names without looking
// any up; checking that they agree is the list's matter.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/row.h"

namespace corvane::detail {

/// Takes the columns of a row as they come and gives the row with its values packed. A row whose columns come
/// in the order of the one before shares that row's names and is made without a look-up.
class RowBuilder {
 public:
  /// Begins a row.
  void reset(std::string_view name, const AttributeMap& attributes);
  /// Adds a column, or replaces it.
  void addField(const Field& field);
  /// True where the row before had a column `name` at this place, and the rows agree up to here.
  bool expects(std::string_view name) const;
  /// Adds the column that is expected, and the name of the last one added so.
  void addExpected(std::string_view value);
  const std::string& lastExpected() const;
  /// The row as it is; the builder keeps it until the next reset.
  Row build();

 private:
  /// Goes on with a real row, which can have any columns.
  void generalize();

  Row row_;                    // tag and attributes; in the general case the columns too
  Shared<RowShape> expected_;  // the columns of the row before, without gaps
  std::string bytes_;          // values in the order of slots
  std::vector<std::size_t> ends_;
  bool general_ = false;
};

}  // namespace corvane::detail
