// The rows of a batch: how the ticked records of a list become rows of a request, how an answer's rows find
// their items again, and what is read from a record or an answer on the way. The frames and the business
// objects use it; sending is theirs. An index is valid until the list changes.
#pragma once

#include <functional>
#include <string>

#include "data/corvane.h"

class TKVXListView;
class TListItem;

namespace norvik {

/// The name of the list of records in an answer, and in the requests that ask by several accounts.
inline constexpr const char* kAnswerList = "resultList";

/// The Color of a record that the bank refused.
inline constexpr const char* kRefusedColor = "255";

/// The ticked records of a list, in list order.
corvane::List TickedRecords(TKVXListView* listView);

/// Fills the row of a record, after its index; false leaves the record out.
using RowFiller = std::function<bool(const corvane::Row& record, corvane::Row& row)>;

/// A row for each ticked item in list order: its index as decimal text under `indexField`, and what `fill`
/// adds.
corvane::List TickedRows(TKVXListView* listView, const char* indexField, const RowFiller& fill);

/// Adds the rows to a request as its list "userDataList", which replaces a list of that name.
void AddUserData(corvane::CorvaneStream& request, corvane::List rows);

/// The item that an answer's row identifies by its index as decimal text; null if there is none. The list
/// owns it.
TListItem* ItemNamed(TKVXListView* listView, const std::string& index);

/// Why a record failed, from ERRCODE and ERRINF of an answer's row: the information alone if there is no
/// code, the host's text for a code without information, both as "[code]information", and a text that the
/// bank gave no reason if both are empty.
std::string FailureText(const std::string& code, const std::string& information);

/// The host's text for a code of the bank; empty where the host has none.
std::string ReasonOf(const std::string& code);

/// The amount of a record in a request to cancel it: BUSSUM if the record has that field, otherwise PAYAMT;
/// "0" if the value is empty.
std::string CancelAmount(const corvane::Row& record);

}  // namespace norvik
