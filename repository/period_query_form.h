// What the screens of applications and of business events share beyond the custody screen: a compulsory range
// of dates of at most 180 days, whose quick choice follows what is typed, and a type to choose. The limit
// itself is in repository/condition_checks.h.
#pragma once

#include "repository/custody_query_form.h"

/// The base of the two screens.
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
  /// The caption and the mark beside a date.
  struct DateCaption {
    const char* key;
    const char* design;  ///< UTF-8
    const char* star;    ///< name of its "*"
  };

  /// The profile of a screen of this kind; it decodes `ownColumns` first.
  static norvik::CustodyProfile PeriodProfile(const char* businessCode, const char* exportType,
                                              const char* captionKey,
                                              std::vector<norvik::CodedColumn> ownColumns);
  std::pair<TKVXDateTime*, TKVXDateTime*> QuickDates() override { return {m_dtStartDate, m_dtEndDate}; }
  /// The screen's table: its conditions, then the two dates in the advanced panel.
  std::vector<norvik::Condition> WithDates(std::vector<norvik::Condition> conditions,
                                           const DateCaption& start, const DateCaption& end);
  norvik::Condition LoanTypeCondition(const char* captionKey, const char* designCaption,
                                      norvik::ConditionCell cell);

  /// Whether the quick choice made the change; the mark is then cleared.
  bool MadeByQuickChoice();
};
