// The question, outside the draft system's service hours, whether a transaction is to be scheduled. The deal
// request of a query screen asks it; the request is the caller's.
#pragma once

#include <string>

class TForm;

/// Shows the booking dialog and waits for it. `startToday`: the bank's day itself can be chosen, otherwise
/// the following day is the first. True if the user confirmed: `scheduled` says whether a day was chosen,
/// `date` is that day ("yyyymmdd") or empty. Otherwise both are unchanged. The owner may be null.
/// User-interface thread only.
bool ShowBookingDlg(TForm* owner, bool startToday, bool& scheduled, std::string& date);
