// The rows of a batch request: what they hold, how they name the items of a list, and how an answer's rows
// find them again. An index is valid until the list changes.
#pragma once

#include <functional>
#include <string>

#include "data/corvane.h"

class TKVXListView;
class TListItem;

namespace norvik {

// Fills the row of a record behind its index; false leaves the record out.
using RowFiller = std::function<bool(const corvane::Row& record, corvane::Row& row)>;

// A row for each ticked item in list order: its index as decimal text under `indexField`, and what `fill`
// adds.
corvane::List TickedRows(TKVXListView* listView, const char* indexField, const RowFiller& fill);

// Puts the rows into a request as its list "userDataList", in place of a list of that name.
void AddUserData(corvane::CorvaneStream& request, corvane::List rows);

// The item that an answer's row names by its index as decimal text; null where it names none.
TListItem* ItemNamed(TKVXListView* listView, const std::string& index);

}  // namespace norvik
