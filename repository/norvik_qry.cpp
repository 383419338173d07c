#include "repository/norvik_qry.h"

#include <algorithm>
#include <array>

#include "dialogs/messages.h"
#include "host/pub_info.h"
#include "host/translate.h"
#include "repository/qry_info.h"
#include "toolkit/action.h"
#include "toolkit/buttons.h"
#include "toolkit/date_edit.h"
#include "toolkit/list_box.h"
#include "toolkit/panels.h"

namespace {

// The custody statuses that are selected when the list is built.
constexpr std::array<std::string_view, 8> kDefaultStatuses = {"02", "03", "07", "09", "10", "D0", "C0", "12"};

constexpr norvik::DateRangeRule kDepositDates = {.startMissing = "UI44871",
                                                 .endMissing = "UI44872",
                                                 .startMalformed = "UI44816",
                                                 .endMalformed = "UI44817",
                                                 .reversed = "UI44558",
                                                 .tooLong = nullptr};
constexpr norvik::DateRangeRule kDueDates = {.startMissing = "UI44869",
                                             .endMissing = "UI44870",
                                             .startMalformed = "UI44826",
                                             .endMalformed = "UI44827",
                                             .reversed = "UI44559",
                                             .tooLong = nullptr};

}  // namespace

const norvik::CustodyProfile& TfrmNorvikQry::Profile() const {
  static const norvik::CustodyProfile profile = {
      .businessCode = "CB200310",
      .exportType = "BillQry",
      .captionKey = "UI25826",
      .codedColumns = norvik::CodedColumns({{"AGTSTAT", "AGENTSTT"}}),
      .dateChoiceCell = {1, 1},
      .dateChoiceFields = 2,
      .queryRow = 4,
      .advanceOpen = false,
      .namesInstitutions = false,
      .outputAlwaysOn = false};
  return profile;
}

void TfrmNorvikQry::BuildControls() {
  TCustodyQueryForm::BuildControls();
  struct ButtonLine {
    TbsSkinButton* TfrmNorvikQry::*button;
    const char* name;
    TAction* action;
  };
  using N = TfrmNorvikQry;
  for (const ButtonLine& line :
       {ButtonLine{&N::m_btnECDSSignInfo, "m_btnECDSSignInfo", m_actECDSSignInfo},
        ButtonLine{&N::m_btnECDSHistoryInfo, "m_btnECDSHistoryInfo", m_actECDSHistoryInfo},
        ButtonLine{&N::m_btnBigResult, "m_btnBigResult", m_actBigResult}}) {
    this->*line.button = NewComponent<TbsSkinButton>(this, line.name);
    (this->*line.button)->SetAction(line.action);
  }
  m_actECDSSignInfo->OnExecute = [this](TObject* sender) { m_actECDSSignInfoExecute(sender); };
  m_actECDSHistoryInfo->OnExecute = [this](TObject* sender) { m_actECDSHistoryInfoExecute(sender); };
  m_actBigResult->OnExecute = [this](TObject* sender) { m_actBigResultExecute(sender); };
  PlaceButtons({m_btnTicketInfo, m_btnECDSSignInfo, m_btnECDSHistoryInfo, m_btnBigResult});
  m_dtStorageStartDate->OnChange = [this](TObject* sender) { m_dtStorageStartDateChange(sender); };
  m_dtStorageEndDate->OnChange = [this](TObject* sender) { m_dtStorageEndDateChange(sender); };
  m_dtDeadStartDate->OnChange = [this](TObject* sender) { m_dtDeadStartDateChange(sender); };
  m_dtDeadEndDate->OnChange = [this](TObject* sender) { m_dtDeadEndDateChange(sender); };
}

void TfrmNorvikQry::m_dtStorageStartDateChange(TObject*) {
  m_bDateByRadio = false;
}

void TfrmNorvikQry::LoadDictionaries() {
  m_pCommon->LoadDictCombo(m_cbxBankRmk, "BANKRMK");
  InitAgentStatusList();
  m_pCommon->LoadDictCombo(m_cbxType, "BILLTYPE");
}

void TfrmNorvikQry::InitAgentStatusList() {
  m_lbxAgentStt->Clear();
  for (const corvane::Row& status : g_pPubInfo->GetIniplusList("BUSINESSDICT", "AGENTSTT")) {
    const std::string key = status.getValue("TYPEKEY");
    const std::string text = g_pTranslate->Translate(status.getValue("TYPE"));
    m_lbxAgentStt->Keys().Add(key);
    m_lbxAgentStt->Names().Add(text);
    const int index = static_cast<int>(m_lbxAgentStt->Items().Add(text));
    if (std::find(kDefaultStatuses.begin(), kDefaultStatuses.end(), key) != kDefaultStatuses.end()) {
      m_lbxAgentStt->SetSelected(index, true);
    }
  }
}

bool TfrmNorvikQry::CheckConditions() {
  if (m_lbxAgentStt->SelCount() == 0) return Refuse("UI44568");
  if (!CheckDates(kDepositDates, m_dtStorageStartDate, m_dtStorageEndDate)) return false;
  if (m_pnlAdvance->RollState()) return true;
  return CheckDates(kDueDates, m_dtDeadStartDate, m_dtDeadEndDate) &&
         CheckAmountRange(m_edMinAmount, m_edMaxAmount);
}

bool TfrmNorvikQry::CheckAmountRange(TKVXEdit* minEdit, TKVXEdit* maxEdit) {
  std::string minimum = minEdit->Text();
  std::string maximum = maxEdit->Text();
  const norvik::AmountRangeFault fault = norvik::CheckAmounts(minimum, maximum);
  minEdit->SetText(minimum);
  maxEdit->SetText(maximum);
  if (fault.messageKey.empty()) return true;
  ShowWarnMsg(g_pTranslate->Translate(fault.messageKey), nullptr);
  if (fault.emptiesMaximum) maxEdit->Clear();
  return false;
}

TRecordInfoForm* TfrmNorvikQry::NewRecordView() {
  return CreateForm<TfrmQryInfo>(this);
}
