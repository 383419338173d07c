// The columns of an exported list, as rows of the column table with their captions in DISPLAY.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "data/corvane.h"

namespace norvik {

// All columns in table order, but for the data columns; `translate` turns a DISPLAY into its text.
corvane::List TableColumns(corvane::List fieldDefs,
                           const std::function<std::string(const std::string&)>& translate);

// A visible column of a list: its id and caption.
struct ShownColumn {
  std::string id;
  std::string caption;
};

// The given columns in the given order; one that the column table lacks is left out.
corvane::List ShownColumns(corvane::List& fieldDefs, const std::vector<ShownColumn>& shown);

}  // namespace norvik
