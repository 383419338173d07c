#include "framework/query_form.h"

#include "framework/select_column.h"
#include "toolkit/action.h"
#include "toolkit/buttons.h"
#include "toolkit/list_view.h"
#include "toolkit/panels.h"

namespace {

constexpr int kFocusedState = 2;  // TListItem::SetState: the focus

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
    // What the host can't tell about the ticked rows is off.
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
// a text or a day of the bank that has changed has all ticked rows looked at once more.
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
  return CheckedCount(norvik::kUnsettled, &norvik::TickRules::unsettledState, TranslateKey("UI52150")) > 0;
}

bool TQueryForm::CanReason() {
  return CheckedCount(norvik::kExplained, &norvik::TickRules::explainedState, TranslateKey("UI52148")) > 0;
}

bool TQueryForm::CanDelete() {
  const int count = m_lvMain->CheckedCount();
  if (count == 0) return false;
  const norvik::CancelRule rule{m_strOprNo,
                                {TranslateKey("UI52140"), TranslateKey("UI52142")},
                                TranslateKey("UI52144"),
                                TranslateKey("UI53030"),
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
