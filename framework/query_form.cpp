#include "framework/query_form.h"

#include "dialogs/statistics.h"
#include "framework/cancel_rule.h"
#include "framework/select_column.h"
#include "host/error.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/list_view.h"
#include "toolkit/menu.h"
#include "toolkit/panels.h"

namespace {

// What the frame leaves free of the screen, pixels.
constexpr int kFreeWidth = 120;
constexpr int kFreeHeight = 220;

constexpr int kAnnouncedForm = 1;  // Tag of a form that the host is told of
constexpr int kCheckedRows = 2;    // GetDataVector: the ticked rows
constexpr int kFocusedState = 2;   // TListItem::SetState: the focus
constexpr std::uint8_t kReasonFlag = 1;

}  // namespace

TQueryForm::TQueryForm(TComponent* owner) : TBaseForm(owner) {}

TQueryForm::~TQueryForm() = default;

void TQueryForm::Construct() {
  TBaseForm::Construct();
  m_lvMain->SetFullDrag(false);
  SetTag(kAnnouncedForm);
  SetPosition(poMainFormCenter);
  m_pIntf = std::make_unique<CMQueryIntf>();
  m_strOprNo = m_pIntf->GetOperatorNo();
  SetWidth(Screen->Width() - kFreeWidth);
  SetHeight(Screen->Height() - kFreeHeight);
}

void TQueryForm::ResetForm() {
  TBaseForm::ResetForm();
  m_crbAllCheck->SetChecked(false);
  for (TAction* action : {m_actViewAuditFoot, m_actSynState, m_actReason}) action->SetEnabled(false);
  SetStatus({});
  m_mubtnDetail->SetVisible(false);
  m_btnOperInfo->SetVisible(false);
  m_btnRecvInfo->SetVisible(false);
  if (m_bHasAdvance) {
    m_pnlAdvance->SetRollState(true);
  } else {
    m_pnlAdvance->SetVisible(false);
  }
  m_pnlNormal->SetRollState(false);
  m_actSum->SetVisible(!m_lvMain->ShowSumRow());
}

void TQueryForm::FormShow(TObject* sender) {
  TBaseForm::FormShow(sender);
  if (m_pSelectColumn == nullptr) m_pSelectColumn = CreateForm<TfrmSelectColumn>(this, ClassName(), m_lvMain);
}

void TQueryForm::FormDestroy() {
  TBaseForm::FormDestroy();
  m_pIntf.reset();
  if (m_pSelectColumn == nullptr) return;
  const TFormPointer<TfrmSelectColumn> selectColumn(std::exchange(m_pSelectColumn, nullptr));
  selectColumn->SaveColumnInfo();
}

void TQueryForm::m_lvMainClick(TObject*) {
  const int checked = m_lvMain->CheckedCount();
  m_actOutput->SetEnabled(checked > 0);
  m_actPrint->SetEnabled(checked > 0);
  m_actViewAuditFoot->SetEnabled(checked == 1);
  m_actSynState->SetEnabled(checked > 0 && CanSynState());
  m_actReason->SetEnabled(checked > 0 && CanReason());
  if (checked == 0) m_actDetail->SetEnabled(false);
  const bool filled = m_lvMain->Items().Count() > 0;
  m_crbAllCheck->SetEnabled(filled);
  if (!filled) m_crbAllCheck->SetChecked(false);
  if (TListItem* selected = m_lvMain->Selected()) selected->SetState(kFocusedState, true);
}

void TQueryForm::SelectAll(TObject* sender) {
  if (m_lvMain->Items().Count() == 0) {
    for (TAction* action : {m_actOutput, m_actPrint, m_actViewAuditFoot, m_actSynState, m_actReason}) {
      action->SetEnabled(false);
    }
    return;
  }
  const bool all = m_crbAllCheck->Checked();
  all ? m_lvMain->CheckAll() : m_lvMain->UnCheckAll();
  UpdateDeleteState();
  m_actOutput->SetEnabled(all);
  m_actPrint->SetEnabled(all);
  m_lvMainClick(sender);
}

void TQueryForm::m_lvMainItemCheck(TObject* sender, TListItem*) {
  UpdateDeleteState();
  m_lvMainClick(sender);
}

void TQueryForm::m_lvMainKeyPress(TObject*, char& key) {
  if (key != ' ' || !m_lvMain->Checkboxes() || !m_lvMain->OnItemCheck) return;
  if (TListItem* selected = m_lvMain->Selected()) m_lvMain->OnItemCheck(m_lvMain, selected);
}

void TQueryForm::m_lvMainSelectItem(TObject*, TListItem* item, bool selected) {
  const corvane::Property* record = selected ? m_lvMain->PropertyOf(item) : nullptr;
  const std::string reason = record == nullptr ? std::string() : record->getValue("Reason");
  std::string text = reason;
  if (!reason.empty()) {
    text = g_pError->GetReasonText(reason, kReasonFlag);
    if (text.empty()) text = reason;
  }
  SetStatus(text);
}

void TQueryForm::m_actHideColumnExecute(TObject*) {
  m_pSelectColumn->m_bDialogOffered = m_bColumnDialog;
  m_pSelectColumn->PrepareColumnMenu(m_pumColumn);
  const QPoint corner = m_tbHideColumn->ClientToScreen(0, m_tbHideColumn->Height());
  m_pumColumn->Popup(corner.x(), corner.y());
}

void TQueryForm::m_actCloseExecute(TObject*) {
  Close();
}

void TQueryForm::m_actSumExecute(TObject*) {
  ShowStatistics(this, m_lvMain, Caption(), m_sumColumns);
}

corvane::List TQueryForm::CheckedRecords() {
  corvane::List records;
  m_lvMain->GetDataVector(records, kCheckedRows);
  return records;
}

void TQueryForm::ModifySelected(corvane::Property& row) {
  m_lvMain->Modify(row, m_lvMain->ColumnIds(), m_lvMain->Selected());
}

bool TQueryForm::AnyCheckedIn(const char* stateKey) {
  const std::string state = TranslateKey(stateKey);
  for (int i = 0; i < m_lvMain->Items().Count(); ++i) {
    const TListItem* item = m_lvMain->Items()[i];
    if (item->Checked() && item->Data()->getValue("STT") == state) return true;
  }
  return false;
}

bool TQueryForm::CanSynState() {
  return AnyCheckedIn("UI52150");
}

bool TQueryForm::CanReason() {
  return AnyCheckedIn("UI52148");
}

void TQueryForm::UpdateDeleteState() {
  const int count = m_lvMain->CheckedCount();
  bool allowed = count > 0;
  if (allowed) {
    const norvik::CancelRule rule{m_strOprNo,
                                  {TranslateKey("UI52140"), TranslateKey("UI52142")},
                                  TranslateKey("UI52144"),
                                  TranslateKey("UI53030"),
                                  m_pIntf->GetServerDate()};
    for (int i = 0; allowed && i < m_lvMain->Items().Count(); ++i) {
      const TListItem* item = m_lvMain->Items()[i];
      if (item->Checked()) allowed = rule.Allows(*item->Data());
    }
  }
  m_actDelete->SetEnabled(allowed);
}

void TQueryForm::SetStatus(const std::string& text) {
  m_pnStatusText->SetCaption(text);
}
