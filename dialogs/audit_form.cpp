#include "dialogs/audit_form.h"

#include "dialogs/audit.h"
#include "dialogs/form_owner.h"
#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "toolkit/layout.h"
#include "toolkit/text.h"

namespace {

constexpr int kOpinionCharacters = 200;
constexpr int kImageSize = 32;

}  // namespace

void TfrmAudit::BuildControls() {
  TBaseForm::BuildControls();
  m_rdgAudit = NewComponent<TbsSkinRadioGroup>(this, "m_rdgAudit");
  m_btnOk = NewComponent<TbsSkinButton>(this, "m_btnOk");
  m_btnCancel = NewComponent<TbsSkinButton>(this, "m_btnCancel");
  m_lblNote = NewComponent<TLabel>(this, "m_lblNote");
  m_imgAudit = NewComponent<TImage>(this, "m_imgAudit");
  m_memInfo = NewComponent<TMemo>(this, "m_memInfo");
  m_rdgAudit->SetColumns(2);
  m_imgAudit->SetStock(siQuestion, kImageSize);
  m_memInfo->SetMaxCharacters(kOpinionCharacters);
  m_memInfo->SetScrollBars(ssVertical);
  m_btnOk->OnClick = [this](TObject* sender) { m_btnOkClick(sender); };
  m_btnCancel->OnClick = [this](TObject* sender) { m_btnCancelClick(sender); };
  TColumnLayout column(this);
  column.SetMargins(16, 14, 16, 12);
  column.SetSpacing(8);
  TRowLayout verdict = column.AddRow();
  verdict.SetSpacing(12);
  verdict.Add(m_imgAudit, 0, caCenter);
  verdict.Add(m_rdgAudit, 1);
  column.Add(m_lblNote);
  column.Add(m_memInfo, 1);
  TRowLayout buttons = column.AddRow();
  buttons.SetSpacing(8);
  buttons.AddStretch();
  buttons.Add(m_btnOk);
  buttons.Add(m_btnCancel);
  SetBorderStyle(bsDialog);
  SetPosition(poOwnerFormCenter);
  SetWidth(400);
  SetHeight(300);
}

void TfrmAudit::SetCaptions() {
  SetCaption("UI12200");
  m_rdgAudit->SetCaption("UI12201");
  m_lblNote->SetCaption("UI12204");
  m_btnOk->SetCaption("UI12205");
  m_btnCancel->SetCaption("UI12206");
}

void TfrmAudit::ResetForm() {
  TBaseForm::ResetForm();
  m_rdgAudit->Items().Assign({TranslateKey("UI12202"), TranslateKey("UI12203")});
  m_rdgAudit->SetItemIndex(kAgree);
  m_memInfo->Clear();
  SetCancelButton(m_btnCancel);
  SetActiveControl(m_rdgAudit);
}

void TfrmAudit::m_btnOkClick(TObject*) {
  if (m_rdgAudit->ItemIndex() == kDisagree && Trim(m_memInfo->Text()).empty()) {
    ShowInfoMsg(TranslateKey(norvik::message::kOpinionMissing), this);
    m_memInfo->SetFocus();
    return;
  }
  SetTag(kConfirmed);
  Close();
}

void TfrmAudit::m_btnCancelClick(TObject*) {
  SetTag(0);
  Close();
}

bool ShowAuditDlg(bool& agree, std::string& opinion, TForm* owner) {
  const TFormPointer<TfrmAudit> form(CreateForm<TfrmAudit>(OwnerOf(owner)));
  form->ShowModal();
  if (form->Tag() != TfrmAudit::kConfirmed) return false;
  agree = form->m_rdgAudit->ItemIndex() == TfrmAudit::kAgree;
  opinion = form->m_memInfo->Text();
  return true;
}
