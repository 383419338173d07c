// The sums of a list screen: for each currency how many records there are and the sum of each amount column,
// once for all records and once for the ticked ones. The list frame opens them; the list is only read.
#pragma once

#include <string>

#include "data/string_vector.h"

class TForm;
class TKVXListView;

/// Shows the sums of a list view in a modal form, or one message if a record can't be summed. `columns` are
/// the ids of the columns to sum, in order. The records are not changed. User-interface thread only.
void ShowStatistics(TForm* owner, TKVXListView* listView, const std::string& caption,
                    const corvane::StringVector& columns);
