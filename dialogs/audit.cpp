#include "dialogs/audit.h"

#include "dialogs/audit_form.h"
#include "dialogs/form_owner.h"

bool ShowAuditDlg(bool& agree, std::string& opinion, TForm* owner) {
  const TFormPointer<TfrmAudit> form(CreateForm<TfrmAudit>(OwnerOf(owner)));
  form->ShowModal();
  if (form->Tag() != TfrmAudit::kConfirmed) return false;
  agree = form->m_rdgAudit->ItemIndex() == TfrmAudit::kAgree;
  opinion = form->m_memInfo->Text();
  return true;
}
