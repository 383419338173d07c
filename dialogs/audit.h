// The question for an approver's verdict and opinion on records. The business objects ask it before they
// build an audit request; nothing is sent here.
#pragma once

#include <string>

class TForm;

/// Shows the audit dialog and waits for it. True if the user confirmed: `agree` is the verdict, `opinion` the
/// text, with lines separated by "\r\n"; a refusal always has one. Otherwise both are unchanged. The owner
/// may be null. User-interface thread only.
bool ShowAuditDlg(bool& agree, std::string& opinion, TForm* owner);
