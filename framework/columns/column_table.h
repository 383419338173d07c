// The columns of a list as its column table describes them: the documents, the order in which they are
// created, their formats, and the marks of a column that the user does not see. The business objects build
// lists by it, the column selection saves and restores them. It creates no column.
#pragma once

#include <string>
#include <vector>

#include "data/corvane.h"

class TKVXListView;
class TListColumn;

namespace norvik {

/// The rows of the column table `fieldDefs` by index, in the order of creation: first those that the saved
/// layout names, in its order, up to a column that it names twice; then the others in table order. A saved
/// name that the table lacks is skipped, and no column appears twice.
std::vector<unsigned> ColumnOrder(corvane::List& fieldDefs, corvane::List& savedLayout);

/// The display format of a column (a TColumnFormat, `TListColumn::Tag`) for the table's COLFMT; cfText for an
/// unknown text. An internal column (cfInternal) is neither offered to the user nor saved.
int ColumnTag(const std::string& format);

/// The host's documents of the column tables and of the users' layouts; both have a section for each list.
inline constexpr const char* kColumnTable = "FIELDDEF";
inline constexpr const char* kLayoutDocument = "COLUMN_INFO";

/// The maximum width of a column that is hidden from the user.
inline constexpr int kHiddenMaxWidth = 1;

/// The text key of the caption of a column that only carries data.
inline constexpr const char* kDataColumnKey = "UI99999";

/// The first column of a list with that caption, null without one; the list owns it.
TListColumn* FindColumn(const TKVXListView* listView, const std::string& caption);

}  // namespace norvik
