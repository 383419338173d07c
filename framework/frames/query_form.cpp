#include "framework/frames/query_form.h"

#include <initializer_list>
#include <vector>

#include "dialogs/audit_foot.h"
#include "dialogs/booking.h"
#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "framework/base/action_table.h"
#include "framework/base/kept_focus.h"
#include "framework/business/batch_rows.h"
#include "framework/columns/select_column.h"
#include "framework/rules/state_texts.h"
#include "host/pub_info.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/event_guard.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/menu.h"
#include "toolkit/panels.h"

namespace {

constexpr int kLastInTabOrder = 1000;

using Q = TQueryForm;
constexpr ActionLine<Q> kActions[] = {
    {&Q::m_actQuery, "m_actQuery", "UI12501", siQuery, &Q::m_actQueryExecute},
    {&Q::m_actOutput, "m_actOutput", "UI43006", siExport, &Q::m_actOutputExecute},
    {&Q::m_actPrintSet, "m_actPrintSet", "UI12504", siPrintSetup, &Q::m_actPrintSetExecute},
    {&Q::m_actPrint, "m_actPrint", "UI43007", siPrint, &Q::m_actPrintExecute},
    {&Q::m_actDetail, "m_actDetail", "UI12515", siDetail, &Q::m_actDetailExecute},
    {&Q::m_actFaceInfo, "m_actFaceInfo", "UI42949", siBill, &Q::m_actFaceInfoExecute},
    {&Q::m_actRearInfo, "m_actRearInfo", "UI42950", siBill, &Q::m_actRearInfoExecute},
    {&Q::m_actOperInfo, "m_actOperInfo", "UI42953", siDetail, &Q::m_actOperInfoExecute},
    {&Q::m_actAppSendInfo, "m_actAppSendInfo", "UI42951", siDetail, &Q::m_actAppSendInfoExecute},
    {&Q::m_actRecvSignInfo, "m_actRecvSignInfo", "UI42954", siDetail, &Q::m_actRecvSignInfoExecute},
    {&Q::m_actHideColumn, "m_actHideColumn", "UI40922", siColumns, &Q::m_actHideColumnExecute},
    {&Q::m_actSendToDesktop, "m_actSendToDesktop", "UI40923", siDesktop, &Q::m_actSendToDesktopExecute},
    {&Q::m_actSynState, "m_actSynState", "UI52421", siSynchronize, &Q::m_actSynStateExecute},
    {&Q::m_actReason, "m_actReason", "UI52435", siReason, &Q::m_actReasonExecute},
    {&Q::m_actAudit, "m_actAudit", "UI12516", siAudit, &Q::m_actAuditExecute},
    {&Q::m_actClose, "m_actClose", "UI12517", siClose, &Q::m_actCloseExecute},
    {&Q::m_actDelete, "m_actDelete", "UI54181", siDelete, &Q::m_actDeleteExecute},
    {&Q::m_actSum, "m_actSum", "UI12580", siSum, &Q::m_actSumExecute},
    {&Q::m_actViewAuditFoot, "m_actViewAuditFoot", "UI42803", siDetail, &Q::m_actViewAuditFootExecute},
};

constexpr const char* kSynState = "COMSTTKP";
constexpr const char* kReason = "COMREASON";
constexpr const char* kDelete = "EBBCMCOQ";
constexpr const char* kAuditTrail = "COMQRYAT";

constexpr const char* kFaceAmount = "UI41034";
constexpr const char* kBusinessAmount = "UI40427";

}  // namespace

TQueryForm::TQueryForm(TComponent* owner) : TListForm(owner) {}

TQueryForm::~TQueryForm() = default;

void TQueryForm::Construct() {
  TListForm::Construct();
  m_pIntf = std::make_unique<CMQueryIntf>();
  m_strOprNo = m_pIntf->GetOperatorNo();
}

void TQueryForm::ResetForm() {
  TListForm::ResetForm();
  if (ShownBefore() && m_strOprNo.empty()) m_strOprNo = m_pIntf->GetOperatorNo();
  for (TAction* action : {m_actViewAuditFoot, m_actSynState, m_actReason}) action->SetEnabled(false);
  m_mubtnDetail->SetVisible(false);
  m_btnOperInfo->SetVisible(false);
  m_btnRecvInfo->SetVisible(false);
  if (m_bHasAdvance) {
    m_pnlAdvance->SetRollState(true);
  } else {
    m_pnlAdvance->SetVisible(false);
  }
  m_pnlNormal->SetRollState(false);
}

void TQueryForm::FormDestroy() {
  TListForm::FormDestroy();
  m_pIntf.reset();
  SaveLayout();
}

void TQueryForm::m_lvMainClick(TObject* sender) {
  TListForm::m_lvMainClick(sender);
  const int checked = m_lvMain->CheckedCount();
  m_actViewAuditFoot->SetEnabled(checked == 1);
  if (checked == 0) m_actDetail->SetEnabled(false);
  if (m_lvMain->Items().Count() == 0) m_crbAllCheck->SetChecked(false);
  if (TListItem* selected = m_lvMain->Selected()) selected->SetState(kFocusedState, true);
  try {
    m_actSynState->SetEnabled(checked > 0 && CanSynState());
    m_actReason->SetEnabled(checked > 0 && CanReason());
  } catch (...) {
    // Whatever depends on a text that can't be read is disabled.
    for (TAction* action : {m_actSynState, m_actReason, m_actDelete}) action->SetEnabled(false);
    throw;
  }
}

void TQueryForm::SelectAll(TObject* sender) {
  TickAll();
  if (m_lvMain->Items().Count() == 0) {
    for (TAction* action : {m_actViewAuditFoot, m_actSynState, m_actReason}) action->SetEnabled(false);
    return;
  }
  m_lvMainClick(sender);
  UpdateDeleteState();
}

void TQueryForm::m_lvMainItemCheck(TObject* sender, TListItem* item) {
  TListForm::m_lvMainItemCheck(sender, item);
  UpdateDeleteState();
}

void TQueryForm::m_actHideColumnExecute(TObject* sender) {
  SelectColumn()->m_bDialogOffered = m_bColumnDialog;
  TListForm::m_actHideColumnExecute(sender);
}

void TQueryForm::ModifySelected(corvane::Property& row) {
  m_lvMain->Modify(row, m_lvMain->ColumnIds(), m_lvMain->Selected());
}

// The list counts its ticked rows by the rules, so that a tick costs the same however many rows are ticked;
// when a text or the bank's day has changed, all ticked rows are counted again.
template <class Rule>
int TQueryForm::CheckedCount(norvik::RecordKind kind, Rule norvik::TickRules::*rule, Rule present) {
  if (tickRules_.*rule != present) {
    tickRules_.*rule = std::move(present);
    m_lvMain->SetKinds(
        [rules = tickRules_](const corvane::Property& record) { return rules.KindsOf(record); });
  }
  return m_lvMain->CheckedCount(kind);
}

bool TQueryForm::CanSynState() {
  return CheckedCount(norvik::kUnsettled, &norvik::TickRules::unsettledState,
                      TranslateKey(norvik::kUnknownStateKey)) > 0;
}

bool TQueryForm::CanReason() {
  return CheckedCount(norvik::kExplained, &norvik::TickRules::explainedState,
                      TranslateKey(norvik::kFailedKey)) > 0;
}

bool TQueryForm::CanDelete() {
  const int count = m_lvMain->CheckedCount();
  if (count == 0) return false;
  const norvik::CancelRule rule{
      m_strOprNo,
      {TranslateKey(norvik::kAwaitingApprovalKey), TranslateKey(norvik::kReturnedKey)},
      TranslateKey(norvik::kApprovedKey),
      TranslateKey(norvik::kBookedKey),
      m_pIntf->GetServerDate()};
  return CheckedCount(norvik::kCancellable, &norvik::TickRules::cancel, rule) == count;
}

void TQueryForm::UpdateDeleteState() {
  try {
    m_actDelete->SetEnabled(CanDelete());
  } catch (...) {
    m_actDelete->SetEnabled(false);
    throw;
  }
}

void TQueryForm::BuildControls() {
  TListForm::BuildControls();
  BuildActionList("m_iglQuery");
  BuildActions(this, m_alMain, kActions);
  // Nothing is ticked in a list that has not been filled yet.
  for (TAction* action : {m_actOutput, m_actPrint, m_actDetail, m_actDelete}) action->SetEnabled(false);
  BuildMenus();
  BuildToolButtons();
  BuildList(m_pmuListview);
  BuildFrame();
  BuildConditions();
  BuildButtons();
}

void TQueryForm::BuildMenus() {
  m_pmuListview = NewComponent<TPopupMenu>(this, "m_pmuListview");
  m_pmuListview->SetImages(m_alMain->Images());
  const auto addGroup = [menu = m_pmuListview->Items()](std::initializer_list<TAction*> actions) {
    if (menu->Count() > 0) menu->AddLine();
    for (TAction* action : actions) menu->AddAction(action);
  };
  addGroup({m_actOutput, m_actPrintSet, m_actPrint});
  addGroup({m_actReason, m_actHideColumn, m_actSendToDesktop});
  addGroup({m_actQuery, m_actAudit, m_actDelete});
  addGroup({m_actSum});
  addGroup({m_actSynState});
  m_pmuBillInfo = NewComponent<TPopupMenu>(this, "m_pmuBillInfo");
  m_pmuBillInfo->Items()->AddAction(m_actFaceInfo);
  m_pmuBillInfo->Items()->AddAction(m_actRearInfo);
  BuildListMenus();
}

void TQueryForm::BuildFrame() {
  MakeControl(this, m_pnRight, "m_pnRight");
  MakeControl(this, m_pnlTop, "m_pnlTop");
  MakeControl(this, m_pnRightBottom, "m_pnRightBottom");
  BuildStatusLine();
  TColumnLayout form(this);
  form.Add(m_pnRight, 1);
  form.Add(m_sbInfo);
  TColumnLayout frame(m_pnRight);
  frame.SetMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin);
  frame.SetSpacing(kFrameGap);
  frame.Add(m_pnTop);
  frame.Add(m_pnCenter, 1);
  frame.Add(m_pnRightBottom);
  TColumnLayout center(m_pnCenter);
  center.SetSpacing(kFrameGap);
  // With a large font the conditions scroll, so that the list and the buttons below it remain on the screen.
  auto* conditions = NewComponent<TbsSkinScrollBox>(this, "m_sbxConditions");
  conditions->SetKeepsWidth(true);
  center.Add(conditions);
  TColumnLayout(conditions).Add(m_pnlTop);
  center.Add(m_pnlData, 1);
}

void TQueryForm::BuildToolButtons() {
  MakeControl(this, m_tbSendToDesktop, "m_tbSendToDesktop", m_actSendToDesktop);
  MakeControl(this, m_tbSynState, "m_tbSynState", m_actSynState);
  MakeControl(this, m_tbReason, "m_tbReason", m_actReason);
  m_tbQuery = BuildToolBar("m_tbQuery", {m_tbSendToDesktop, m_tbSynState, m_tbReason});
}

void TQueryForm::BuildConditions() {
  MakeControl(this, m_pnlNormal, "m_pnlNormal");
  MakeControl(this, m_pnlAdvance, "m_pnlAdvance");
  MakeControl(this, m_spdQuery, "m_spdQuery", m_actQuery);
  // After whatever conditions a screen adds to the panel.
  m_spdQuery->SetTabOrder(kLastInTabOrder);
  TRowLayout normal(m_pnlNormal);
  normal.AddStretch();
  normal.Add(m_spdQuery);
  TColumnLayout conditions(m_pnlTop);
  conditions.SetSpacing(kFrameGap);
  conditions.Add(m_pnlNormal);
  conditions.Add(m_pnlAdvance);
}

void TQueryForm::BuildButtons() {
  MakeControl(this, m_btnAudit, "m_btnAudit", m_actAudit);
  MakeControl(this, m_btnDetail, "m_btnDetail", m_actDetail);
  MakeControl(this, m_mubtnDetail, "m_mubtnDetail");
  m_mubtnDetail->SetSkinPopupMenu(m_pmuBillInfo);
  MakeControl(this, m_btnOperInfo, "m_btnOperInfo", m_actOperInfo);
  MakeControl(this, m_btnRecvInfo, "m_btnRecvInfo", m_actOperInfo);
  MakeControl(this, m_btnViewAuditFoot, "m_btnViewAuditFoot", m_actViewAuditFoot);
  MakeControl(this, m_btnDel, "m_btnDel", m_actDelete);
  MakeControl(this, m_btnClose, "m_btnClose", m_actClose);
  PlaceButtons({});
}

void TQueryForm::PlaceButtons(std::initializer_list<TWinControl*> rowButtons) {
  std::vector<TWinControl*> buttons = rowButtons;
  buttons.insert(buttons.end(), {m_btnDetail, m_mubtnDetail, m_btnOperInfo, m_btnRecvInfo, m_btnViewAuditFoot,
                                 m_btnAudit, m_btnDel, m_btnClose});
  TRowLayout bottom(m_pnRightBottom);
  bottom.SetSpacing(kFrameGap);
  bottom.AddStretch();
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    bottom.Add(buttons[i]);
    buttons[i]->SetTabOrder(static_cast<int>(i));
  }
}

void TQueryForm::SetCaptions() {
  SetActionCaptions(this, kActions);
  m_mubtnDetail->SetCaption("UI42992");
  m_btnOperInfo->SetCaption("UI42993");
  m_crbAllCheck->SetCaption("UI12506");
  m_pnlNormal->SetCaption("UI12237");
  m_pnlAdvance->SetCaption("UI12238");
}

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

// A failure while an answer is applied is reported where it happens, so that the last steps of each action
// run in any case.
void TQueryForm::m_actSynStateExecute(TObject* sender) {
  RunGuarded(this, [this] {
    corvane::CorvaneStream request, answer;
    AddRowsInState(request, norvik::kUnknownStateKey);
    if (Exchange(m_actSynState, kSynState, request, answer)) TakeStates(answer);
  });
  m_lvMainClick(sender);
  UpdateDeleteState();
}

void TQueryForm::TakeStates(const corvane::CorvaneStream& answer) {
  corvane::List rows = answer.getList(norvik::kAnswerList);
  m_pIntf->FormatStatus(rows, norvik::kSucceededKey);
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
    AddRowsInState(request, norvik::kFailedKey);
    if (Exchange(m_actReason, kReason, request, answer)) TakeReasons(answer);
  });
  if (TListItem* selected = m_lvMain->Selected()) m_lvMainSelectItem(m_lvMain, selected, true);
}

void TQueryForm::TakeReasons(const corvane::CorvaneStream& answer) {
  for (const corvane::Row& row : answer.getList(norvik::kAnswerList)) {
    const TListItem* item = norvik::ItemNamed(m_lvMain, row.getValue("RECORDID"));
    if (item == nullptr) continue;
    const std::string reason = norvik::FailureText(row.getValue("ERRCODE"), row.getValue("ERRINF"));
    (*m_lvMain->PropertyOf(item))["Reason"] = reason;
    m_lvMain->RefreshItem(item);
  }
}

void TQueryForm::m_actDeleteExecute(TObject* sender) {
  if (!ShowConfirmMsg(TranslateKey(norvik::message::kCancelRecords), nullptr)) return;
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
  corvane::List steps = answer.getList(norvik::kAnswerList);
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

void TQueryForm::m_actOutputExecute(TObject*) {
  const bool allColumns =
      !m_bAskColumns || ShowConfirmMsg(TranslateKey(norvik::message::kExportAllColumns), nullptr);
  const std::string fileName = AskOutputFile();
  if (!fileName.empty()) OutputRecords(fileName, allColumns);
}

void TQueryForm::OutputRecords(const AnsiString& fileName, bool allColumns) {
  WriteRecords(fileName, allColumns);
}

void TQueryForm::m_actSendToDesktopExecute(TObject*) {
  const std::string iconFile =
      g_pPubInfo->GetField("ENVIRONMENT", "ENV.IMAGES").getValue() + ClassName() + ".ico";
  m_imgTitle->SaveIconToFile(iconFile);
  g_pPubInfo->SetField("ENVIRONMENT", corvane::Field("CURSHORTCUT.ITEMIMAGE", iconFile));
  SendToDesktop(m_strItemName);
}
