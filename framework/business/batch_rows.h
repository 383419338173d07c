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

// Why a record failed, from ERRCODE and ERRINF of an answer's row: the information alone where there is no
// code, the host's text for a code without information, both as "[code]information", and a text that the
// bank gave no reason where both are empty.
std::string FailureText(const std::string& code, const std::string& information);

// The amount of a record in a request to cancel it: BUSSUM where the record has that field, otherwise PAYAMT;
// "0" where the value is empty.
std::string CancelAmount(const corvane::Row& record);

}  // namespace norvik
