// The batch actions of TQueryForm: what it sends of the ticked records to change or refresh them, and how it
// takes the answers.
#include "dialogs/audit_foot.h"
#include "dialogs/booking.h"
#include "dialogs/messages.h"
#include "framework/action_off.h"
#include "framework/batch_rows.h"
#include "framework/batch_values.h"
#include "framework/query_form.h"
#include "toolkit/application.h"
#include "toolkit/list_view.h"

namespace {

constexpr const char* kSynState = "COMSTTKP";
constexpr const char* kReason = "COMREASON";
constexpr const char* kDelete = "EBBCMCOQ";
constexpr const char* kAuditTrail = "COMQRYAT";

constexpr const char* kResultList = "resultList";
constexpr const char* kStateToSynchronize = "UI52150";
constexpr const char* kStateWithReason = "UI52148";
constexpr const char* kTextOfState7 = "UI52879";
constexpr const char* kAskDelete = "UI53250";
constexpr const char* kFaceAmount = "UI41034";
constexpr const char* kBusinessAmount = "UI40427";

}  // namespace

bool TQueryForm::Exchange(TAction* action, const char* code, corvane::CorvaneStream& request,
                          corvane::CorvaneStream& answer) {
  const ActionOff off(this, action);
  return m_pIntf->SendRequest(code, request, answer, this);
}

void TQueryForm::AddRowsInState(corvane::CorvaneStream& request, const char* stateKey) {
  const std::string state = TranslateKey(stateKey);
  norvik::AddUserData(request, norvik::TickedRows(m_lvMain, "RECORDID",
                                                  [&state](const corvane::Row& record, corvane::Row& row) {
                                                    row["ORDERNO"] = record.getValue("ORDERNO");
                                                    return record.getValue("STT") == state;
                                                  }));
}

// A failure in taking an answer is reported where it happens, so that what ends each action runs in any case.
void TQueryForm::m_actSynStateExecute(TObject* sender) {
  RunGuarded(this, [this] {
    corvane::CorvaneStream request, answer;
    AddRowsInState(request, kStateToSynchronize);
    if (Exchange(m_actSynState, kSynState, request, answer)) TakeStates(answer);
  });
  m_lvMainClick(sender);
  UpdateDeleteState();
}

void TQueryForm::TakeStates(const corvane::CorvaneStream& answer) {
  corvane::List rows = answer.getList(kResultList);
  m_pIntf->FormatStatus(rows, kTextOfState7);
  for (const corvane::Row& row : rows) {
    TListItem* item = norvik::ItemNamed(m_lvMain, row.getValue("RECORDID"));
    corvane::Property record;
    if (!m_lvMain->Get(record, m_lvMain->ColumnIds(), item)) continue;
    record["STT"] = row.getValue("STT");
    m_lvMain->Modify(record, m_lvMain->ColumnIds(), item);
  }
}

void TQueryForm::m_actReasonExecute(TObject*) {
  RunGuarded(this, [this] {
    corvane::CorvaneStream request, answer;
    AddRowsInState(request, kStateWithReason);
    if (Exchange(m_actReason, kReason, request, answer)) TakeReasons(answer);
  });
  if (TListItem* selected = m_lvMain->Selected()) m_lvMainSelectItem(m_lvMain, selected, true);
}

void TQueryForm::TakeReasons(const corvane::CorvaneStream& answer) {
  for (const corvane::Row& row : answer.getList(kResultList)) {
    const TListItem* item = norvik::ItemNamed(m_lvMain, row.getValue("RECORDID"));
    if (item == nullptr) continue;
    const std::string reason = norvik::FailureText(row.getValue("ERRCODE"), row.getValue("ERRINF"));
    (*m_lvMain->PropertyOf(item))["Reason"] = reason;
    m_lvMain->RefreshItem(item);
  }
}

void TQueryForm::m_actDeleteExecute(TObject* sender) {
  if (!ShowConfirmMsg(TranslateKey(kAskDelete), nullptr)) return;
  RunGuarded(this, [this] {
    corvane::CorvaneStream request, answer;
    BuildDeleteRequest(request);
    if (!Exchange(m_actDelete, kDelete, request, answer)) return;
    m_pIntf->ShowResultTotals(answer);
    ProcessResult(answer);
  });
  m_lvMainClick(sender);
  UpdateDeleteState();
}

void TQueryForm::BuildDeleteRequest(corvane::CorvaneStream& request) {
  corvane::Row head;
  head["BSNCODE"] = m_strBsnCode;
  head["TRNSUM"] = std::to_string(m_lvMain->CheckedCount());
  head["TOTALTRAM"] = CheckedTotal();
  request.addFields(head);
  norvik::AddUserData(request,
                      norvik::TickedRows(m_lvMain, "ID", [](const corvane::Row& record, corvane::Row& row) {
                        row["ORDERNO"] = record.getValue("ORDERNO");
                        row["TRNAMT"] = norvik::CancelAmount(record);
                        return true;
                      }));
}

std::string TQueryForm::CheckedTotal() {
  int column = m_pIntf->FindColumnByCaption(m_lvMain, TranslateKey(kFaceAmount));
  if (column == -1) column = m_pIntf->FindColumnByCaption(m_lvMain, TranslateKey(kBusinessAmount));
  std::string sum = m_lvMain->GetTotalMoney(column, true);
  if (sum.empty()) sum = "0";  // the list has neither column
  std::string total;
  m_pIntf->NormalizeAmount(sum.c_str(), total);
  return total;
}

void TQueryForm::m_actViewAuditFootExecute(TObject*) {
  corvane::List records = CheckedRecords();
  if (records.size() == 0) return;
  corvane::CorvaneStream request, answer;
  request.addField(corvane::Field("ORDERNO", records[0].getValue("ORDERNO")));
  if (!Exchange(m_actViewAuditFoot, kAuditTrail, request, answer)) return;
  corvane::List steps = answer.getList(kResultList);
  records[0]["BSNName"] = m_strBsnName;
  m_pIntf->FormatAgree(steps);
  ShowAuditFoot(records[0], steps);
}

bool TQueryForm::BuildDealRequest(corvane::CorvaneStream& source, corvane::CorvaneStream& request,
                                  bool startToday) {
  corvane::Row fields;
  for (const char* key : {"BSNCODE", "FLAG", "AGREEFLAG", "AGREEREM", "BATNO", "TALNUM", "FLOWID"}) {
    fields[key] = source.getValue(key);
  }
  bool scheduled = false;
  std::string date;
  const bool confirmed = ShowBookingDlg(this, startToday, scheduled, date);
  fields["DEALNOASK"] = "1";
  fields["PREFLG"] = scheduled ? "1" : "0";
  fields["PREDATE"] = date;
  fields["PRETIME"] = "";
  request.addFields(fields);
  norvik::AddUserData(request,
                      norvik::TickedRows(m_lvMain, "ID", [](const corvane::Row& record, corvane::Row& row) {
                        for (const char* field : {"FLOWID", "ORDERNO"}) row[field] = record.getValue(field);
                        row["TRNAMT"] = record.getValue("PAYAMT");
                        return true;
                      }));
  return confirmed;
}
