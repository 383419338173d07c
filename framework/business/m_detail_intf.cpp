#include "framework/business/m_detail_intf.h"

#include "framework/business/audit_verdict.h"
#include "framework/business/batch_rows.h"

bool CMDetailIntf::BuildDetailAuditRequest(TKVXListView* listView, const std::string& code,
                                           corvane::CorvaneStream& request) {
  const corvane::List rows = norvik::AuditRows(listView);
  if (rows.size() == 0) {
    norvik::WarnOfNothingTicked();
    return false;
  }
  norvik::AddUserData(request, rows);
  bool agree = false;
  std::string opinion;
  if (!norvik::AskVerdict(agree, opinion)) return false;
  request.addFields(norvik::SingleAudit(agree, opinion, code));
  return true;
}
