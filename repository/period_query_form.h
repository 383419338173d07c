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
  // What a screen says beside one of its dates.
  struct DateCaption {
    const char* key;
    const char* design;  // UTF-8
    const char* star;    // name of its "*"
  };

  // The profile of a screen of this kind; it decodes `ownColumns` first.
  static norvik::CustodyProfile PeriodProfile(const char* businessCode, const char* exportType,
                                              const char* captionKey,
                                              std::vector<norvik::CodedColumn> ownColumns);
  std::pair<TKVXDateTime*, TKVXDateTime*> QuickDates() override { return {m_dtStartDate, m_dtEndDate}; }
  // The screen's table: its conditions, and behind them the two dates in the advanced panel.
  std::vector<norvik::Condition> WithDates(std::vector<norvik::Condition> conditions,
                                           const DateCaption& start, const DateCaption& end);
  norvik::Condition LoanTypeCondition(const char* captionKey, const char* designCaption,
                                      norvik::ConditionCell cell);

  // True for a change that the quick choice made, which is then forgotten.
  bool MadeByQuickChoice();
};
