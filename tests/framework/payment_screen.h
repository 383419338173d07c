// A query screen as small as one can be that offers everything the frame has. docs/how-a-screen-is-made.md
// walks through it, the tests of the batch actions drive it; it is no screen of the module.
#pragma once

#include <memory>

#include "framework/business/query_common.h"
#include "framework/frames/query_form.h"

class TKVXEdit;
class TLabel;

/// The payments of an operator, with one condition and the batch actions.
class TfrmPaymentQry : public TQueryForm {
  Q_OBJECT

 public:
  using TQueryForm::TQueryForm;

  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void ResetForm() override;
  void m_lvMainClick(TObject* sender) override;
  void m_actQueryExecute(TObject* sender) override;
  void m_actAuditExecute(TObject* sender) override;
  void FormDestroy() override;

  /// The business object that the frame uses.
  CMQueryIntf& Intf() { return *m_pIntf; }

  TLabel* m_lbOrder = nullptr;
  TKVXEdit* m_edOrder = nullptr;

 private:
  bool CheckConditions();

  std::unique_ptr<CQueryCommon> m_pCommon;
};
