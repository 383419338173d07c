// TfrmNorvikDTLQry, menu item "ITEM6068": the single business events on the bills in custody, by business
// type, flow number and date.
#pragma once

#include "repository/period_query_form.h"

class TfrmNorvikDTLQry : public TPeriodQueryForm {
  Q_OBJECT

 public:
  using TPeriodQueryForm::TPeriodQueryForm;

  bool CheckConditions() override;
  // Limits the date also where the quick choice wrote it.
  void m_dtEndDateChange(TObject* sender) override;

  TKVXEdit* m_edBillId = nullptr;
  TKVXEdit* m_edFlowNo = nullptr;

 protected:
  const norvik::CustodyProfile& Profile() const override;
  std::vector<norvik::Condition> Conditions() override;
  void LoadDictionaries() override;
  TRecordInfoForm* NewRecordView() override;
  // With more accounts than one the institutions stay empty until the operator picks an account.
  void StartAccount() override;
};
