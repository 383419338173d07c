// TfrmNorvikELoanQry, menu item "ITEM6067": the customer's applications on the custody business, by number,
// type, status and date. The menu opens it; it shows no bill's enquiries.
#pragma once

#include "repository/period_query_form.h"

/// The screen of applications.
class TfrmNorvikELoanQry : public TPeriodQueryForm {
  Q_OBJECT

 public:
  using TPeriodQueryForm::TPeriodQueryForm;

  bool CheckConditions() override;

  TKVXEdit* m_edLoanNo = nullptr;
  TKVXComboBox* m_cbxLoanResult = nullptr;

 protected:
  const norvik::CustodyProfile& Profile() const override;
  std::vector<norvik::Condition> Conditions() override;
  void LoadDictionaries() override;
  TRecordInfoForm* NewRecordView() override;
};
