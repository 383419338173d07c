// The order in which a list's columns are created.
#pragma once

#include <vector>

#include "data/corvane.h"

namespace norvik {

// The rows of the column table `fieldDefs` by index, in the order of creation: first those that the saved
// layout names, in its order, up to a column that it names twice; then the others in table order. A saved
// name that the table lacks is skipped, and no column comes twice.
std::vector<unsigned> ColumnOrder(corvane::List& fieldDefs, corvane::List& savedLayout);

// The display format of a column (a TColumnFormat, `TListColumn::Tag`) for the table's COLFMT; cfText for a
// text it does not know. An internal column (cfInternal) is neither offered to the user nor saved.
int ColumnTag(const std::string& format);

// The text key of the caption of a column that only carries data.
inline constexpr const char* kDataColumnKey = "UI99999";

}  // namespace norvik
