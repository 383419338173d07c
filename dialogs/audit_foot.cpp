#include "dialogs/audit_foot.h"

#include <utility>

#include "dialogs/audit_foot_form.h"
#include "toolkit/application.h"

void ShowAuditFoot(corvane::Row record, corvane::List auditList) {
  const TFormPointer<TfrmEBillAuditFoot> form(
      CreateForm<TfrmEBillAuditFoot>(Application, std::move(record), std::move(auditList)));
  form->ShowModal();
}
