#include "framework/business/m_query_intf.h"

#include <algorithm>

#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "framework/business/audit_verdict.h"
#include "framework/business/batch_rows.h"
#include "framework/rules/state_texts.h"
#include "host/safe_com.h"
#include "host/translate.h"
#include "toolkit/date_edit.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/radio_group.h"

using norvik::DateRange;
using norvik::QuickDate;

namespace {

constexpr std::size_t kHourDigits = 10;  // "yyyymmddhh"
constexpr const char* kBatchAudit = "1";

void AddSingleAudit(corvane::CorvaneStream& request, bool agree, const std::string& opinion,
                    const std::string& code, std::int32_t subType) {
  corvane::Row fields = norvik::SingleAudit(agree, opinion, code);
  fields["SUBTYPE"] = std::to_string(subType);
  request.addFields(fields);
}

}  // namespace

void CMQueryIntf::FillListView(TKVXListView* listView, corvane::List& rows) {
  listView->Clear();
  listView->Add(rows, listView->ColumnIds().toString("; ", false));
}

void CMQueryIntf::FormatStatus(corvane::List& rows, const std::string& key7) {
  for (unsigned i = 0; i < rows.size(); ++i) {
    std::string& state = rows[i]["STT"];
    const std::string key = norvik::StateTextKey(state, key7);
    if (key.empty()) continue;
    const std::string text = g_pTranslate->Translate(key);
    m_statusTexts[text] = state;
    state = text;
  }
}

void CMQueryIntf::FormatAgree(corvane::List& rows) {
  for (unsigned i = 0; i < rows.size(); ++i) {
    std::string& approval = rows[i]["AGREE"];
    const std::string key = norvik::ApprovalTextKey(approval);
    if (!key.empty()) approval = g_pTranslate->Translate(key);
  }
}

void CMQueryIntf::ApplyDateRadio(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio) {
  const DateRange range = norvik::QuickRange(static_cast<QuickDate>(radio->ItemIndex()), GetServerDate());
  if (range.start.empty()) return;
  startEdit->SetText(range.start);
  endEdit->SetText(range.end);
}

void CMQueryIntf::SyncDateRadio(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio) {
  const auto shown = static_cast<QuickDate>(radio->ItemIndex());
  const QuickDate fitting = norvik::QuickDateOf({startEdit->Text(), endEdit->Text()}, shown, GetServerDate());
  if (fitting != shown) radio->SetItemIndex(static_cast<int>(fitting));
}

void CMQueryIntf::LimitStartDate(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio) {
  LimitDate(startEdit, startEdit, endEdit, radio);
}

void CMQueryIntf::LimitEndDate(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio) {
  LimitDate(endEdit, startEdit, endEdit, radio);
}

void CMQueryIntf::LimitDate(TKVXDateTime* limited, TKVXDateTime* startEdit, TKVXDateTime* endEdit,
                            TbsSkinRadioGroup* radio) {
  const std::string date = limited->Text();
  if (date.empty()) return;
  const std::string allowed = norvik::NotAfter(date, GetServerDate());
  if (allowed != date) limited->SetText(allowed);
  SyncDateRadio(startEdit, endEdit, radio);
}

bool CMQueryIntf::TakeAuditRecords(TKVXListView* listView, corvane::CorvaneStream& request) {
  SetAuditRows(norvik::TickedRecords(listView));
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
  const corvane::List records = norvik::TickedRecords(listView);
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
  const std::string booked = g_pTranslate->Translate(norvik::kBookedUnderAuditKey);
  const bool past = std::any_of(m_auditRows.begin(), m_auditRows.end(), [&](const corvane::Row& record) {
    return norvik::IsPastBooking(record, booked, present);
  });
  m_auditRows.clear();
  return !past || ShowConfirmMsg(g_pTranslate->Translate(norvik::message::kBookingPassed), nullptr);
}
