// Asks an approver for a verdict and an opinion.
#pragma once

#include <string>

class TForm;

// Shows the audit dialog and waits for it. True if the user confirmed: `agree` is the verdict, `opinion` the
// text, lines parted by "\r\n"; a refusal never comes without one. Otherwise both stay as they were. The
// owner may be null. User-interface thread only.
bool ShowAuditDlg(bool& agree, std::string& opinion, TForm* owner);
