#include "framework/columns/export_rules.h"

#include <algorithm>

#include "framework/columns/column_table.h"
#include "host/translate.h"

namespace norvik {

void CompleteExportHead(corvane::Row& head, const std::string& userName) {
  for (const char* mark : {"BEQRY", "ACCGRP"}) {
    if (!head.hasField(mark)) continue;
    head["QUERYUSER"] = g_pTranslate->Translate("UI50258");
    head["USERNAME"] = userName;
    if (std::string(mark) == "BEQRY") head["CONDITION"] = g_pTranslate->Translate("UI50260");
    head.removeField(mark);
  }
}

bool IsTextFileName(const std::string& fileName) {
  const std::size_t dot = fileName.rfind('.');
  if (dot == std::string::npos) return false;
  std::string extension = fileName.substr(dot + 1);
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return extension == "TXT";
}

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
