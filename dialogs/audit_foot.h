// The view of one record's basic data and its approval trail. A query screen opens it with the bank's answer
// in hand; only the approval flow, which the user may ask for, is a request of the view itself.
#pragma once

#include "data/corvane.h"

/// Shows the record in a modal form, in which the user can open the record's approval flow. `record` is the
/// record with BSNName, the name of its business; `auditList` holds the approval steps with their verdicts as
/// texts. User-interface thread only.
void ShowAuditFoot(corvane::Row record, corvane::List auditList);
