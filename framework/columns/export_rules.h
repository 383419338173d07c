// What an export consists of before it goes to the spreadsheet service: its head, its columns and the kind of
// its file. CMInterface and the list frame use it; nothing here writes a file or looks at a list view.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "data/corvane.h"

namespace norvik {

/// Replaces the marks BEQRY and ACCGRP of an export's head by the user who queried: QUERYUSER and USERNAME,
/// and for BEQRY also the heading CONDITION.
void CompleteExportHead(corvane::Row& head, const std::string& userName);

/// Whether the extension of a file name, after the last ".", is "txt" in any case.
bool IsTextFileName(const std::string& fileName);

/// All columns in table order, except the data columns; `translate` turns a DISPLAY into its text.
corvane::List TableColumns(corvane::List fieldDefs,
                           const std::function<std::string(const std::string&)>& translate);

/// A visible column of a list: its id and caption.
struct ShownColumn {
  std::string id;
  std::string caption;
};

/// The given columns in the given order; one that the column table lacks is left out.
corvane::List ShownColumns(corvane::List& fieldDefs, const std::vector<ShownColumn>& shown);

}  // namespace norvik
