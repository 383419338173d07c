// A record's basic data and its approval trail.
#pragma once

#include "data/corvane.h"

// Shows them in a modal form, from where the user can look at the record's approval flow. `record` is the
// record with BSNName, the name of its business; `auditList` holds the approval steps with their verdicts as
// texts. User-interface thread only.
void ShowAuditFoot(corvane::Row record, corvane::List auditList);
