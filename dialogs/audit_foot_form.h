// The form of ShowAuditFoot: captions and values of a record above the list of its approval steps. Callers
// use dialogs/audit_foot.h; tests and pictures build the form itself.
#pragma once

#include "data/corvane.h"
#include "framework/base/base_form.h"
#include "toolkit/buttons.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/panels.h"

/// A record's data, its approval steps, and a button to its approval flow.
class TfrmEBillAuditFoot : public TBaseForm {
  Q_OBJECT

 public:
  TfrmEBillAuditFoot(TComponent* owner, corvane::Row record, corvane::List auditList);

  void BuildControls() override;
  void SetCaptions() override;
  /// Builds the list's columns from the column table of this class; the user's saved layouts are not read. A
  /// failure is reported in the standard way, and the columns built so far stay.
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void ResetForm() override;

  TbsSkinPanel* m_pnBasicInfo = nullptr;
  TLabel* m_lbOpor = nullptr;
  TLabel* m_lbOporTime = nullptr;
  TLabel* m_lbPay = nullptr;
  TLabel* m_lbRcv = nullptr;
  TLabel* m_lbPayAmt = nullptr;
  TLabel* m_lbCryType = nullptr;
  TLabel* m_lbPurpose = nullptr;
  TLabel* m_lbBsn = nullptr;
  TLabel* m_lbBsnValue = nullptr;
  TLabel* m_lbOporName = nullptr;
  TLabel* m_lbPayAcc = nullptr;
  TLabel* m_lbRcvAcc = nullptr;
  TLabel* m_lbOponTimeValue = nullptr;
  TLabel* m_lbAmtValue = nullptr;
  TLabel* m_lbCryValue = nullptr;
  TLabel* m_lbPurValue = nullptr;
  TbsSkinPanel* bsSkinPanel1 = nullptr;
  TbsSkinPanel* m_pnAuditFoot = nullptr;
  TKVXListView* m_lvMain = nullptr;
  TbsSkinButton* m_btnViewFlow = nullptr;
  TbsSkinButton* m_btnClose = nullptr;
  TbsSkinScrollBar* m_sbListH = nullptr;
  TbsSkinScrollBar* m_sbListV = nullptr;

 private:
  struct Line;
  static const Line kLines[];

  void BuildBasicInfo();
  void BuildList();
  void BuildColumns();
  void ShowRecord();
  void m_btnViewFlowClick(TObject* sender);
  /// Asks the bank for the record's flow and shows it; warns if there is none.
  void ShowFlow();

  corvane::Row m_record;
  corvane::List m_auditList;
};
