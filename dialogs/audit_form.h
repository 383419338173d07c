// The form of ShowAuditDlg: a verdict to choose and an opinion to type. Callers use dialogs/audit.h; tests
// build the form itself.
#pragma once

#include "framework/base/base_form.h"
#include "toolkit/buttons.h"
#include "toolkit/edits.h"
#include "toolkit/labels.h"
#include "toolkit/radio_group.h"

/// Tag is kConfirmed after the user has confirmed, otherwise 0.
class TfrmAudit : public TBaseForm {
  Q_OBJECT

 public:
  static constexpr int kConfirmed = 1;
  /// Items of m_rdgAudit.
  static constexpr int kAgree = 0;
  static constexpr int kDisagree = 1;

  explicit TfrmAudit(TComponent* owner) : TBaseForm(owner) {}

  void BuildControls() override;
  void SetCaptions() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void ResetForm() override;

  TbsSkinRadioGroup* m_rdgAudit = nullptr;
  TbsSkinButton* m_btnOk = nullptr;
  TbsSkinButton* m_btnCancel = nullptr;
  TLabel* m_lblNote = nullptr;
  TImage* m_imgAudit = nullptr;
  TMemo* m_memInfo = nullptr;

 private:
  void m_btnOkClick(TObject* sender);
  void m_btnCancelClick(TObject* sender);
};
