// An approver's verdict on records, as requests carry it, and the records that it is about. The business
// objects of lists and of detail dialogs build their audit requests from it; sending them is the screen's.
#pragma once

#include <string>

#include "data/corvane.h"

class TKVXListView;

namespace norvik {

/// The bytes of an opinion that a request can carry, at most.
inline constexpr std::size_t kMaxOpinionBytes = 200;

/// The ticked records as rows of an audit request: ID, ORDERNO, FLOWID, TRNAMT.
corvane::List AuditRows(TKVXListView* listView);

/// Warns that nothing is ticked.
void WarnOfNothingTicked();

/// Asks the approver for verdict and opinion; false if the approver cancelled, or if the opinion is longer
/// than kMaxOpinionBytes, which is reported to the user.
bool AskVerdict(bool& agree, std::string& opinion);

/// Sets AGREEFLAG ("0" agreed, "1" not), AGREEREM and BPBSNCODE.
void SetVerdict(corvane::Row& fields, bool agree, const std::string& opinion, const std::string& code);

/// The fields of the audit of single records: FLAG "0" and the verdict.
corvane::Row SingleAudit(bool agree, const std::string& opinion, const std::string& code);

/// Whether a record is booked for an hour before `present` ("yyyymmddhh"): its PREFLG is `bookedText`, and
/// PREDATE ("yyyy-mm-dd") with the first two characters of PRETIME is the smaller number. A record without
/// PREFLG is not booked; a booking whose date or time is no number counts as past.
bool IsPastBooking(const corvane::Row& record, const std::string& bookedText, const std::string& present);

}  // namespace norvik
