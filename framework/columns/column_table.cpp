#include "framework/columns/column_table.h"

#include <set>

#include "toolkit/kvx_list_view.h"

#include "toolkit/decimal_text.h"

namespace norvik {

std::vector<unsigned> ColumnOrder(corvane::List& fieldDefs, corvane::List& savedLayout) {
  std::vector<unsigned> order;
  std::set<std::string> added;
  for (unsigned i = 0; i < savedLayout.size(); ++i) {
    const std::string id = savedLayout[i].getValue("ColumnID");
    if (added.contains(id)) break;
    const int row = fieldDefs.find("COLID", id, 0);
    if (row < 0) continue;
    added.insert(id);
    order.push_back(static_cast<unsigned>(row));
  }
  for (unsigned i = 0; i < fieldDefs.size(); ++i) {
    if (added.insert(fieldDefs[i].getValue("COLID")).second) order.push_back(i);
  }
  return order;
}

int ColumnTag(const std::string& format) {
  if (format == "M") return cfAmount;
  if (format == "N") return cfNumber;
  if (format == "R") return cfRightText;
  if (format == "X") return cfInternal;
  return cfText;
}

TListColumn* FindColumn(const TKVXListView* listView, const std::string& caption) {
  const TListColumns& columns = listView->Columns();
  for (int i = 0; i < columns.Count(); ++i) {
    if (columns[i]->Caption() == caption) return columns[i];
  }
  return nullptr;
}

}  // namespace norvik
