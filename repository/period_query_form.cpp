#include "repository/period_query_form.h"

#include <utility>

#include "toolkit/date_edit.h"

using norvik::Condition;
using norvik::ConditionPanel;
using norvik::Emptied;

void TPeriodQueryForm::BuildControls() {
  TCustodyQueryForm::BuildControls();
  m_dtStartDate->OnChange = [this](TObject* sender) { m_dtStartDateChange(sender); };
  m_dtEndDate->OnChange = [this](TObject* sender) { m_dtEndDateChange(sender); };
}

bool TPeriodQueryForm::MadeByQuickChoice() {
  return std::exchange(m_bDateByRadio, false);
}

void TPeriodQueryForm::m_dtStartDateChange(TObject*) {
  if (!MadeByQuickChoice()) m_pCommon->LimitStartDate(m_dtStartDate, m_dtEndDate, m_rgSelDate);
}

void TPeriodQueryForm::m_dtEndDateChange(TObject*) {
  if (!MadeByQuickChoice()) m_pCommon->LimitEndDate(m_dtStartDate, m_dtEndDate, m_rgSelDate);
}

norvik::CustodyProfile TPeriodQueryForm::PeriodProfile(const char* businessCode, const char* exportType,
                                                       const char* captionKey,
                                                       std::vector<norvik::CodedColumn> ownColumns) {
  return {.businessCode = businessCode,
          .exportType = exportType,
          .captionKey = captionKey,
          .codedColumns = norvik::CodedColumns(std::move(ownColumns), {{"KZRFLAG", "TRANSMK"}}),
          .dateChoiceCell = {1, 0},
          .dateChoiceFields = 2,
          .queryRow = 2,
          .advanceOpen = true,
          .namesInstitutions = true,
          .outputAlwaysOn = true};
}

std::vector<Condition> TPeriodQueryForm::WithDates(std::vector<Condition> conditions,
                                                   const DateCaption& start, const DateCaption& end) {
  struct DateLine {
    TKVXDateTime** control;
    const char* name;
    const char* labelName;
    const DateCaption& caption;
    const char* field;
  };
  int place = 0;
  for (const DateLine& line : {DateLine{&m_dtStartDate, "m_dtStartDate", "m_lbStartDate", start, "APLYDTS"},
                               DateLine{&m_dtEndDate, "m_dtEndDate", "m_lbEndDate", end, "APLYDTE"}}) {
    conditions.push_back({.control = line.control,
                          .name = line.name,
                          .labelName = line.labelName,
                          .captionKey = line.caption.key,
                          .designCaption = line.caption.design,
                          .starName = line.caption.star,
                          .panel = ConditionPanel::kAdvance,
                          .cell = {0, place++},
                          .emptied = Emptied::kAtShow,
                          .field = line.field});
  }
  return conditions;
}

Condition TPeriodQueryForm::LoanTypeCondition(const char* captionKey, const char* designCaption,
                                              norvik::ConditionCell cell) {
  return {.control = &m_cbxLoanType,
          .name = "m_cbxLoanType",
          .labelName = "m_lbLoanType",
          .captionKey = captionKey,
          .designCaption = designCaption,
          .cell = cell,
          .field = "APPTYPE"};
}
