#include "framework/output_columns.h"

#include "framework/column_order.h"

namespace norvik {

corvane::List TableColumns(corvane::List fieldDefs,
                           const std::function<std::string(const std::string&)>& translate) {
  corvane::List columns;
  for (unsigned i = 0; i < fieldDefs.size(); ++i) {
    std::string& display = fieldDefs[i]["DISPLAY"];
    if (display == kDataColumnKey) continue;
    display = translate(display);
    columns.addRow(fieldDefs[i]);
  }
  return columns;
}

corvane::List ShownColumns(corvane::List& fieldDefs, const std::vector<ShownColumn>& shown) {
  corvane::List columns;
  for (const ShownColumn& column : shown) {
    const int index = fieldDefs.find("COLID", column.id, 0);
    if (index < 0) continue;
    corvane::Row row = fieldDefs[static_cast<unsigned>(index)];
    row["DISPLAY"] = column.caption;
    columns.addRow(row);
  }
  return columns;
}

}  // namespace norvik
