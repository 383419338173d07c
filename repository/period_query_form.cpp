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

std::vector<Condition> TPeriodQueryForm::DateConditions(const DateCaptions& captions) {
  return {{.control = &m_dtStartDate,
           .name = "m_dtStartDate",
           .labelName = "m_lbStartDate",
           .captionKey = captions.startKey,
           .designCaption = captions.startDesign,
           .starName = captions.startStar,
           .panel = ConditionPanel::kAdvance,
           .cell = {0, 0},
           .emptied = Emptied::kAtShow,
           .field = "APLYDTS"},
          {.control = &m_dtEndDate,
           .name = "m_dtEndDate",
           .labelName = "m_lbEndDate",
           .captionKey = captions.endKey,
           .designCaption = captions.endDesign,
           .starName = captions.endStar,
           .panel = ConditionPanel::kAdvance,
           .cell = {0, 1},
           .emptied = Emptied::kAtShow,
           .field = "APLYDTE"}};
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
