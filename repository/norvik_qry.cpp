#include "repository/norvik_qry.h"

#include <algorithm>
#include <array>
#include <exception>

#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "framework/base/kept_focus.h"
#include "framework/business/batch_rows.h"
#include "host/pub_info.h"
#include "host/translate.h"
#include "repository/enquiry_form.h"
#include "repository/record_info_form.h"
#include "toolkit/action.h"
#include "toolkit/buttons.h"
#include "toolkit/date_edit.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/list_box.h"
#include "toolkit/panels.h"

using norvik::Condition;
using norvik::ConditionPanel;
using norvik::Emptied;

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

constexpr const char* kBillId = "BILLSID";
constexpr const char* kAccount = "CUSTACC";
constexpr norvik::CodedColumn kRegistrationType = {"INFOTYP", "SIGNINFOTYPE"};

template <class Dialog>
TEnquiryForm* NewDialog(TComponent* owner) {
  return CreateForm<Dialog>(owner);
}

}  // namespace

const norvik::CustodyProfile& TfrmNorvikQry::Profile() const {
  static const norvik::CustodyProfile kProfile = {
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
  return kProfile;
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
  for (const corvane::Row& status : g_pPubInfo->GetIniplusList(kDictionaries, "AGENTSTT")) {
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
  if (m_lbxAgentStt->SelCount() == 0) return Refuse(norvik::message::kNoStatusSelected);
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
  // Without an owner the message is over the host's main window, as the one for an empty answer is.
  ShowWarnMsg(g_pTranslate->Translate(fault.messageKey), nullptr);
  if (fault.emptiesMaximum) maxEdit->Clear();
  return false;
}

TRecordInfoForm* TfrmNorvikQry::NewRecordView() {
  return CreateForm<TfrmQryInfo>(this);
}

// What differs between the enquiries.
struct TfrmNorvikQry::Enquiry {
  const char* transaction;
  const char* numberField;  // sent beside the bill's id and account
  bool byNumber;            // the number is enough if the bill has no id
  const char* missingKey;   // the message for a bill without the number that the enquiry needs
  const norvik::CodedColumn* coded;
  TEnquiryForm* (*newDialog)(TComponent* owner);
};

void TfrmNorvikQry::m_actECDSHistoryInfoExecute(TObject*) {
  Enquire({"EBBADEHQ", "QURYNUM", true, norvik::message::kNoBillIdOrNumber, nullptr,
           &NewDialog<TfrmECDSHistoryDtl>});
}

void TfrmNorvikQry::m_actECDSSignInfoExecute(TObject*) {
  Enquire({"EBBADERQ", "QURYNUM", true, norvik::message::kNoBillIdOrNumber, &kRegistrationType,
           &NewDialog<TfrmECDSignDtl>});
}

void TfrmNorvikQry::m_actBigResultExecute(TObject*) {
  Enquire({"EBBADHHQ", "BILLNUM", false, norvik::message::kNoBillId, nullptr, &NewDialog<TfrmBigResultDtl>});
}

void TfrmNorvikQry::EnableRowActions(bool on) {
  for (TAction* action : {m_actECDSSignInfo, m_actECDSHistoryInfo, m_actBigResult}) action->SetEnabled(on);
}

void TfrmNorvikQry::Enquire(const Enquiry& enquiry) {
  corvane::Row fields;
  for (const char* field : {kBillId, kAccount, enquiry.numberField}) {
    fields[field] = m_selectedRow.getValue(field);
  }
  const bool identified = !fields.getValue(kBillId).empty();
  if (!identified && !(enquiry.byNumber && !fields.getValue(enquiry.numberField).empty())) {
    Refuse(enquiry.missingKey);
    return;
  }
  if (enquiry.byNumber) fields["QURYTYP"] = identified ? "1" : "2";
  const KeptFocus focus(this);
  std::exception_ptr failure;
  try {
    ShowAnswer(enquiry, fields);
  } catch (...) {
    failure = std::current_exception();
  }
  m_lvMainClick(this);
  if (failure) std::rethrow_exception(failure);
}

void TfrmNorvikQry::ShowAnswer(const Enquiry& enquiry, const corvane::Row& fields) {
  const TFormPointer<TEnquiryForm> dialog(enquiry.newDialog(this));
  corvane::CorvaneStream request;
  corvane::CorvaneStream answer;
  request.addFields(fields);
  EnableRowActions(false);
  if (!m_pCommon->SendRequest(enquiry.transaction, request, answer, this)) return;
  dialog->SetRecord(answer.getFieldsRow());
  corvane::List& rows = answer.getList(norvik::kAnswerList);
  if (rows.size() > 0) {
    if (enquiry.coded != nullptr) {
      m_pCommon->DecodeDictColumn(rows, enquiry.coded->field, enquiry.coded->dictionary);
    }
    m_pCommon->FillListView(dialog->m_lvMain, rows);
  }
  dialog->ShowModal();
}

std::vector<Condition> TfrmNorvikQry::Conditions() {
  return {
      AccountCondition({0, 0}, "m_lbStarlAgentAcc"),
      InstitutionCondition({0, 1}, "Label1"),
      {.control = &m_edBatNo,
       .name = "m_edBatNo",
       .labelName = "m_lbBatNo",
       .captionKey = "UI44004",
       .designCaption = "存票批次号",
       .cell = {1, 0},
       .input = norvik::TextInput(20),
       .emptied = Emptied::kAtClose,
       .field = "BATCHNO",
       .trimmed = true},
      {.control = &m_lbxAgentStt,
       .name = "m_lbxAgentStt",
       .labelName = "m_lbSTT",
       .captionKey = "UI44005",
       .designCaption = "代保管状态",
       .starName = "Label2",
       .cell = {0, 2, 3},
       .field = "AGTSTAT"},
      {.control = &m_edBillId,
       .name = "m_edBillId",
       .labelName = "m_lbBillId",
       .captionKey = "UI44006",
       .designCaption = "票据ID",
       .cell = {1, 1},
       .input = norvik::DigitsInput(8),
       .field = "BILLSID"},
      BillNumberCondition({2, 0}, true),
      BillTypeCondition({2, 1}, "Label3"),
      {.control = &m_dtStorageStartDate,
       .name = "m_dtStorageStartDate",
       .labelName = "m_lbStorageStartDate",
       .captionKey = "UI44010",
       .designCaption = "起始存票日期",
       .cell = {3, 0},
       .emptied = Emptied::kAtShow,
       .field = "SAVEDTS"},
      {.control = &m_dtStorageEndDate,
       .name = "m_dtStorageEndDate",
       .labelName = "m_lbStorageEndDate",
       .captionKey = "UI44011",
       .designCaption = "截止存票日期",
       .cell = {3, 1},
       .emptied = Emptied::kAtShow,
       .field = "SAVEDTE"},
      {.control = &m_edBackName,
       .name = "m_edBackName",
       .labelName = "m_lbBackName",
       .captionKey = "UI44304",
       .designCaption = "托管人前手背书人名称",
       .cell = {3, 2},
       .input = norvik::TextInput(60),
       .emptied = Emptied::kAtClose,
       .field = "PTENDNM",
       .trimmed = true},
      BankRemarkCondition({4, 0}),
      {.control = &m_dtDeadStartDate,
       .name = "m_dtDeadStartDate",
       .labelName = "m_lbDeadStartDate",
       .captionKey = "UI44302",
       .designCaption = "起始到期日",
       .panel = ConditionPanel::kAdvance,
       .cell = {0, 0},
       .emptied = Emptied::kAtShow,
       .field = "DUEDATS"},
      {.control = &m_dtDeadEndDate,
       .name = "m_dtDeadEndDate",
       .labelName = "m_lbDeadEndDate",
       .captionKey = "UI44303",
       .designCaption = "截止到期日",
       .panel = ConditionPanel::kAdvance,
       .cell = {0, 1},
       .emptied = Emptied::kAtShow,
       .field = "DUEDATE"},
      {.control = &m_edMinAmount,
       .name = "m_edMinAmount",
       .labelName = "m_lbMinAmount",
       .captionKey = "UI44498",
       .designCaption = "起始票面金额",
       .panel = ConditionPanel::kAdvance,
       .cell = {0, 2},
       .input = norvik::kAmountInput,
       .emptied = Emptied::kAtShow,
       .field = "AMTBEGN"},
      {.control = &m_edMaxAmount,
       .name = "m_edMaxAmount",
       .labelName = "m_lbMaxAmount",
       .captionKey = "UI44499",
       .designCaption = "截止票面金额",
       .panel = ConditionPanel::kAdvance,
       .cell = {1, 0},
       .input = norvik::kAmountInput,
       .emptied = Emptied::kAtShow,
       .field = "AMTENDS"},
  };
}
