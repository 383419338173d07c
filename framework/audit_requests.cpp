// The part of CMQueryIntf that builds audit requests.
#include <algorithm>

#include "dialogs/messages.h"
#include "framework/audit_verdict.h"
#include "framework/batch_rows.h"
#include "framework/m_query_intf.h"
#include "host/safe_com.h"
#include "host/translate.h"
#include "toolkit/list_view.h"

namespace {

constexpr int kCheckedRows = 2;          // GetDataVector: the ticked rows
constexpr std::size_t kHourDigits = 10;  // "yyyymmddhh"
constexpr const char* kBatchAudit = "1";
constexpr const char* kBooked = "UI52019";
constexpr const char* kPastBooking = "UI53317";

corvane::List TickedRecords(TKVXListView* listView) {
  corvane::List records;
  listView->GetDataVector(records, kCheckedRows);
  return records;
}

void AddSingleAudit(corvane::CorvaneStream& request, bool agree, const std::string& opinion,
                    const std::string& code, std::int32_t subType) {
  corvane::Row fields = norvik::SingleAudit(agree, opinion, code);
  fields["SUBTYPE"] = std::to_string(subType);
  request.addFields(fields);
}

}  // namespace

bool CMQueryIntf::TakeAuditRecords(TKVXListView* listView, corvane::CorvaneStream& request) {
  SetAuditRows(TickedRecords(listView));
  if (m_auditRows.size() == 0) {
    norvik::WarnOfNothingTicked();
    return false;
  }
  if (!ConfirmBookedRecords()) return false;
  norvik::AddUserData(request, norvik::AuditRows(listView));
  return true;
}

bool CMQueryIntf::BuildAuditRequest(TKVXListView* listView, const std::string& code,
                                    corvane::CorvaneStream& request, std::int32_t subType) {
  bool agree = false;
  std::string opinion;
  if (!TakeAuditRecords(listView, request) || !norvik::AskVerdict(agree, opinion)) return false;
  AddSingleAudit(request, agree, opinion, code, subType);
  return true;
}

bool CMQueryIntf::BuildAgreedAuditRequest(TKVXListView* listView, const std::string& code,
                                          corvane::CorvaneStream& request, bool& agree, std::string& remark,
                                          std::int32_t subType) {
  if (!TakeAuditRecords(listView, request)) return false;
  if (subType == 0 && !norvik::AskVerdict(agree, remark)) return false;
  AddSingleAudit(request, agree, remark, code, subType);
  return true;
}

bool CMQueryIntf::BuildBatchAuditRequest(TKVXListView* listView, const std::string& code,
                                         corvane::CorvaneStream& request) {
  const corvane::List records = TickedRecords(listView);
  SetAuditRows(records);
  if (!ConfirmBookedRecords()) return false;
  const corvane::Row& first = records[0];
  corvane::Row fields;
  fields["BATNO"] = first.getValue("BATNO");
  fields["TALNUM"] = first.getValue("TOTALAMOUNT");
  fields["FLOWID"] = first.getValue("FLOWID");
  fields["SMTDATE"] = first.getValue("SMTDATE");
  fields["FLAG"] = kBatchAudit;
  bool agree = false;
  std::string opinion;
  if (!norvik::AskVerdict(agree, opinion)) return false;
  norvik::SetVerdict(fields, agree, opinion, code);
  request.addFields(fields);
  return true;
}

bool CMQueryIntf::ConfirmBookedRecords() {
  const std::string present = g_pSafeCom->GetServerTime().getDateTime().substr(0, kHourDigits);
  const std::string booked = g_pTranslate->Translate(kBooked);
  const bool past = std::any_of(m_auditRows.begin(), m_auditRows.end(), [&](const corvane::Row& record) {
    return norvik::IsPastBooking(record, booked, present);
  });
  m_auditRows.clear();
  return !past || ShowConfirmMsg(g_pTranslate->Translate(kPastBooking), nullptr);
}
