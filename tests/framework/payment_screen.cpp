#include "tests/framework/payment_screen.h"

#include "dialogs/messages.h"
#include "toolkit/action.h"
#include "toolkit/buttons.h"
#include "toolkit/edits.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/panels.h"

namespace {

constexpr const char* kBusinessCode = "CB000001";
constexpr const char* kQueryTransaction = "PAYQUERY";
constexpr const char* kAuditTransaction = "PAYAUDIT";

}  // namespace

void TfrmPaymentQry::BuildControls() {
  TQueryForm::BuildControls();
  m_lbOrder = NewComponent<TLabel>(this, "m_lbOrder");
  m_edOrder = NewComponent<TKVXEdit>(this, "m_edOrder");
  m_edOrder->SetInputRule({ikLettersDigitsChinese, 20});
  TRowLayout conditions(m_pnlNormal);
  conditions.SetSpacing(8);
  conditions.Add(m_lbOrder);
  conditions.Add(m_edOrder);
  conditions.AddStretch();
  conditions.Add(m_spdQuery);
}

void TfrmPaymentQry::SetCaptions() {
  TQueryForm::SetCaptions();
  SetCaption("UI42780");
  m_lbOrder->SetCaption("UI44006");
}

void TfrmPaymentQry::Construct() {
  TQueryForm::Construct();
  m_pCommon = std::make_unique<CQueryCommon>();
  m_pCommon->InitListColumns(m_lvMain, ClassName());
  m_strBsnCode = kBusinessCode;
  m_strBsnName = "Payments";
  m_strExportType = "PaymentQry";
  m_sumColumns = {"PAYAMT"};
  m_bHasAdvance = false;
}

void TfrmPaymentQry::ResetForm() {
  TQueryForm::ResetForm();
  for (TAction* action : {m_actDetail, m_actPrintSet, m_actPrint}) action->SetVisible(false);
  m_edOrder->Clear();
  EmptyList();
  UpdateDeleteState();
}

void TfrmPaymentQry::m_lvMainClick(TObject* sender) {
  TQueryForm::m_lvMainClick(sender);
  m_actAudit->SetEnabled(m_lvMain->CheckedCount() > 0);
}

bool TfrmPaymentQry::CheckConditions() {
  if (m_edOrder->Text().empty() || m_pCommon->IsAlphanumeric(m_edOrder->Text())) return true;
  ShowWarnMsg(TranslateKey("UI44873"), this);
  return false;
}

void TfrmPaymentQry::m_actQueryExecute(TObject* sender) {
  if (!CheckConditions()) return;
  corvane::CorvaneStream request, answer;
  request.addField(corvane::Field("ORDERNO", m_edOrder->Text()));
  if (!m_pCommon->SendRequest(kQueryTransaction, request, answer, this)) return;
  corvane::List payments = answer.getList("resultList");
  m_pCommon->FormatStatus(payments, "UI52879");
  m_pCommon->DecodeDictColumn(payments, "PREFLG", "YESORNO");
  m_pCommon->FillListView(m_lvMain, payments);
  m_lvMainClick(sender);
}

void TfrmPaymentQry::m_actAuditExecute(TObject* sender) {
  corvane::CorvaneStream request, answer;
  if (!m_pCommon->BuildAuditRequest(m_lvMain, m_strBsnCode, request, 0)) return;
  if (m_pCommon->SendRequest(kAuditTransaction, request, answer, this)) ProcessResult(answer);
  m_lvMainClick(sender);
}

void TfrmPaymentQry::FormDestroy() {
  m_pCommon.reset();
  TQueryForm::FormDestroy();
}
