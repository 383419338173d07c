// Asks, out of the draft system's service hours, whether a transaction is to be scheduled.
#pragma once

#include <string>

class TForm;

// Shows the booking dialog and waits for it. `startToday`: the bank's day itself can be chosen, otherwise the
// day after it is the first. True if the user confirmed: `scheduled` tells whether a day was chosen, `date`
// is that day ("yyyymmdd") or empty. Otherwise both stay as they were. The owner may be null. User-interface
// thread only.
bool ShowBookingDlg(TForm* owner, bool startToday, bool& scheduled, std::string& date);
