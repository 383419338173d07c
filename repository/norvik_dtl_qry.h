// TfrmNorvikDTLQry, menu item "ITEM6068": the single business events on the bills in custody, by business
// type, flow number and date. The menu opens it; it shows no bill's enquiries.
#pragma once

#include "repository/period_query_form.h"

/// The screen of business events.
class TfrmNorvikDTLQry : public TPeriodQueryForm {
  Q_OBJECT

 public:
  using TPeriodQueryForm::TPeriodQueryForm;

  bool CheckConditions() override;
  /// Limits the date even if the quick choice wrote it.
  void m_dtEndDateChange(TObject* sender) override;

  TKVXEdit* m_edBillId = nullptr;
  TKVXEdit* m_edFlowNo = nullptr;

 protected:
  const norvik::CustodyProfile& Profile() const override;
  std::vector<norvik::Condition> Conditions() override;
  void LoadDictionaries() override;
  TRecordInfoForm* NewRecordView() override;
  /// With more than one account the institutions remain empty until the operator chooses an account.
  void StartAccount() override;
};
