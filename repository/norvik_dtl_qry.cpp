#include "repository/norvik_dtl_qry.h"

#include "dialogs/message_keys.h"
#include "repository/record_info_form.h"
#include "toolkit/combo_box.h"

using norvik::Condition;
using norvik::Emptied;

namespace {

constexpr norvik::DateRangeRule kBusinessDates = {.startMissing = "UI44842",
                                                  .endMissing = "UI44843",
                                                  .startMalformed = "UI44562",
                                                  .endMalformed = "UI44563",
                                                  .reversed = "UI44561",
                                                  .tooLong = "UI44583"};

}  // namespace

const norvik::CustodyProfile& TfrmNorvikDTLQry::Profile() const {
  static const norvik::CustodyProfile kProfile =
      PeriodProfile("CB200330", "BusinessDTLQry", "UI25830", {{"APPTYPE", "BUSITYPE"}});
  return kProfile;
}

std::vector<Condition> TfrmNorvikDTLQry::Conditions() {
  return WithDates(
      {
          AccountCondition({0, 0}, "Label2"),
          InstitutionCondition({0, 1}, ""),
          BillNumberCondition({0, 2}, false),
          {.control = &m_edBillId,
           .name = "m_edBillId",
           .labelName = "m_lbBillId",
           .captionKey = "UI44006",
           .designCaption = "票据ID",
           .cell = {1, 0},
           .input = norvik::TextInput(20),
           .emptied = Emptied::kAtClose,
           .field = "BILLSID"},
          BillTypeCondition({1, 1}, ""),
          LoanTypeCondition("UI44496", "业务类别", {1, 2}),
          {.control = &m_edFlowNo,
           .name = "m_edFlowNo",
           .labelName = "m_lbFlowNo",
           .captionKey = "UI44497",
           .designCaption = "业务流水号",
           .cell = {2, 0},
           .input = norvik::TextInput(18),
           .emptied = Emptied::kAtClose,
           .field = "BSNFLOW"},
          BankRemarkCondition({2, 1}),
      },
      {"UI44556", "起始业务发生日期", "m_lbeee"}, {"UI44557", "截止业务发生日期", "Label3"});
}

void TfrmNorvikDTLQry::LoadDictionaries() {
  m_pCommon->LoadDictCombo(m_cbxType, "BILLTYPE");
  m_pCommon->LoadDictCombo(m_cbxLoanType, "BUSITYPE");
  m_pCommon->LoadDictCombo(m_cbxBankRmk, "BANKRMK");
}

void TfrmNorvikDTLQry::StartAccount() {
  if (m_cbxAcc->Items().Count() == 1) m_cbxAccChange(this);
}

bool TfrmNorvikDTLQry::CheckConditions() {
  const std::string flowNumber = m_edFlowNo->Text();
  if (!flowNumber.empty() && !m_pCommon->IsAlphanumeric(flowNumber))
    return Refuse(norvik::message::kFlowNumberInvalid);
  return CheckDates(kBusinessDates, m_dtStartDate, m_dtEndDate);
}

void TfrmNorvikDTLQry::m_dtEndDateChange(TObject*) {
  m_pCommon->LimitEndDate(m_dtStartDate, m_dtEndDate, m_rgSelDate);
}

TRecordInfoForm* TfrmNorvikDTLQry::NewRecordView() {
  return CreateForm<TfrmDetailQryInfo>(this);
}
