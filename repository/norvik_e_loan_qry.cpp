#include "repository/norvik_e_loan_qry.h"

#include "repository/record_info_form.h"
#include "toolkit/combo_box.h"

using norvik::Condition;
using norvik::Emptied;

namespace {

constexpr norvik::DateRangeRule kApplicationDates = {.startMissing = "UI44840",
                                                     .endMissing = "UI44841",
                                                     .startMalformed = "UI44828",
                                                     .endMalformed = "UI44829",
                                                     .reversed = "UI44560",
                                                     .tooLong = "UI44583"};

}  // namespace

const norvik::CustodyProfile& TfrmNorvikELoanQry::Profile() const {
  static const norvik::CustodyProfile kProfile = PeriodProfile(
      "CB200320", "ELoanQry", "UI25828", {{"APPREST", "LOANRESULT"}, {"APPTYPE", "LOANTYPEAPP"}});
  return kProfile;
}

std::vector<Condition> TfrmNorvikELoanQry::Conditions() {
  return WithDates(
      {
          AccountCondition({0, 0}, "Label3"),
          InstitutionCondition({0, 1}, "Label1"),
          BillNumberCondition({0, 2}, false),
          BillTypeCondition({1, 0}, ""),
          {.control = &m_edLoanNo,
           .name = "m_edLoanNo",
           .labelName = "m_lbLoanNo",
           .captionKey = "UI44474",
           .designCaption = "申请编号",
           .cell = {1, 1},
           .input = norvik::TextInput(18),
           .emptied = Emptied::kAtClose,
           .field = "APPLYNO"},
          LoanTypeCondition("UI44475", "申请类别", {1, 2}),
          {.control = &m_cbxLoanResult,
           .name = "m_cbxLoanResult",
           .labelName = "m_lbLoanResult",
           .captionKey = "UI44476",
           .designCaption = "申请状态",
           .cell = {2, 0},
           .field = "APPREST"},
          BankRemarkCondition({2, 1}),
      },
      {"UI44477", "起始申请日期", "Label2"}, {"UI44478", "截止申请日期", "Label4"});
}

void TfrmNorvikELoanQry::LoadDictionaries() {
  m_pCommon->LoadDictCombo(m_cbxBankRmk, "BANKRMK");
  m_pCommon->LoadDictCombo(m_cbxType, "BILLTYPE");
  m_pCommon->LoadDictCombo(m_cbxLoanType, "LOANTYPEAPP");
  m_pCommon->LoadDictCombo(m_cbxLoanResult, "LOANRESULT");
}

bool TfrmNorvikELoanQry::CheckConditions() {
  return CheckDates(kApplicationDates, m_dtStartDate, m_dtEndDate);
}

TRecordInfoForm* TfrmNorvikELoanQry::NewRecordView() {
  return CreateForm<TfrmAppQryInfo>(this);
}
