// What the screens of applications and of business events share beyond the custody screen: a compulsory range
// of dates of less than 181 days, whose quick choice follows what is typed, and a type to choose.
#pragma once

#include "repository/custody_query_form.h"

class TPeriodQueryForm : public TCustodyQueryForm {
  Q_OBJECT

 public:
  using TCustodyQueryForm::TCustodyQueryForm;

  void BuildControls() override;

  virtual void m_dtStartDateChange(TObject* sender);
  virtual void m_dtEndDateChange(TObject* sender);

  TKVXDateTime* m_dtStartDate = nullptr;
  TKVXDateTime* m_dtEndDate = nullptr;
  TKVXComboBox* m_cbxLoanType = nullptr;

 protected:
  // The captions of the two dates, in the advanced panel.
  struct DateCaptions {
    const char* startKey;
    const char* startDesign;
    const char* startStar;
    const char* endKey;
    const char* endDesign;
    const char* endStar;
  };

  std::pair<TKVXDateTime*, TKVXDateTime*> QuickDates() override { return {m_dtStartDate, m_dtEndDate}; }
  std::vector<norvik::Condition> DateConditions(const DateCaptions& captions);
  norvik::Condition LoanTypeCondition(const char* captionKey, const char* designCaption,
                                      norvik::ConditionCell cell);

  // True for a change that the quick choice made, which is then forgotten.
  bool MadeByQuickChoice();
};
