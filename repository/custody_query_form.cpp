#include "repository/custody_query_form.h"

#include <utility>

#include "dialogs/bank_info.h"
#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "framework/base/kept_focus.h"
#include "framework/business/batch_rows.h"
#include "host/translate.h"
#include "repository/record_info_form.h"
#include "toolkit/action.h"
#include "toolkit/buttons.h"
#include "toolkit/combo_box.h"
#include "toolkit/date_edit.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/panels.h"
#include "toolkit/radio_group.h"
#include "toolkit/text.h"

using norvik::Condition;
using norvik::ConditionCell;
using norvik::ConditionPanel;
using norvik::ConditionTable;
using norvik::Emptied;

namespace {

constexpr const char* kQueryTransaction = "EBBADQDB";
constexpr const char* kInstitutionsTransaction = "EBBADQAH";
constexpr const char* kDefaultBillType = "AC00";
constexpr const char* kSumColumn = "PAYAMT";

// Every query sends all of these; a condition that a screen lacks is empty.
constexpr const char* kRequestFields[] = {"AGTBHNM", "BILLNUM", "BILLSID", "BILLTYP", "BATCHNO", "PTENDNM",
                                          "ACCPNAM", "AGTSTAT", "BKRMKTY", "DUEDATS", "DUEDATE", "AMTBEGN",
                                          "AMTENDS", "APLYDTS", "APLYDTE", "SAVEDTS", "SAVEDTE", "HASIMPN",
                                          "APPLYNO", "APPTYPE", "DSBKBNM", "APPREST", "BSNFLOW"};

constexpr const char* kDateChoiceKeys[] = {"UI40110", "UI40111", "UI40112", "UI40113", "UI40114"};
constexpr const char* kDateChoiceCaptions[] = {"当日", "本周", "本月", "上月", "其它"};

struct RowActionLine {
  TAction* TCustodyQueryForm::*action;
  const char* name;
  const char* captionKey;
};
using F = TCustodyQueryForm;
constexpr RowActionLine kRowActions[] = {{&F::m_actTicketInfo, "m_actTicketInfo", "UI44316"},
                                         {&F::m_actECDSSignInfo, "m_actECDSSignInfo", "UI44317"},
                                         {&F::m_actECDSHistoryInfo, "m_actECDSHistoryInfo", "UI44318"},
                                         {&F::m_actBigResult, "m_actBigResult", "UI44319"}};

}  // namespace

namespace norvik {

std::vector<CodedColumn> CodedColumns(std::vector<CodedColumn> before,
                                      const std::vector<CodedColumn>& after) {
  before.insert(
      before.end(),
      {{"BILLTYP", "BILLTYPE"}, {"TENDFLG", "YESORNO"}, {"AUTOCOL", "YESORNO"}, {"HASIMPN", "YESORNO"}});
  before.insert(before.end(), after.begin(), after.end());
  return before;
}

}  // namespace norvik

TCustodyQueryForm::TCustodyQueryForm(TComponent* owner) : TQueryForm(owner) {}

TCustodyQueryForm::~TCustodyQueryForm() = default;

void TCustodyQueryForm::BuildControls() {
  TQueryForm::BuildControls();
  for (const RowActionLine& line : kRowActions) {
    this->*line.action = m_alMain->NewAction(line.name, line.captionKey);
  }
  m_actTicketInfo->OnExecute = [this](TObject* sender) { m_actTicketInfoExecute(sender); };
  m_btnTicketInfo = NewComponent<TbsSkinButton>(this, "m_btnTicketInfo");
  m_btnTicketInfo->SetAction(m_actTicketInfo);
  PlaceButtons({m_btnTicketInfo});

  const norvik::CustodyProfile& profile = Profile();
  conditions_ = ConditionTable(Conditions());
  TGridLayout normal = conditions_.Build(this, m_pnlNormal, ConditionPanel::kNormal);
  normal.Put(m_spdQuery, profile.queryRow, (ConditionTable::kFields - 1) * ConditionTable::kCellsOfField + 1,
             1, 1, caRight);
  TGridLayout advance = conditions_.Build(this, m_pnlAdvance, ConditionPanel::kAdvance);
  m_rgSelDate = NewComponent<TbsSkinRadioGroup>(this, "m_rgSelDate");
  for (const char* caption : kDateChoiceCaptions) m_rgSelDate->Items().Add(Ansi(caption));
  m_rgSelDate->SetColumns(static_cast<int>(std::size(kDateChoiceCaptions)));
  advance.Put(m_rgSelDate, profile.dateChoiceCell.row,
              profile.dateChoiceCell.field * ConditionTable::kCellsOfField, profile.dateChoiceCell.rows,
              profile.dateChoiceFields * ConditionTable::kCellsOfField);
  m_rgSelDate->OnClick = [this](TObject* sender) { m_rgSelDateClick(sender); };
  m_cbxAcc->OnChange = [this](TObject* sender) { m_cbxAccChange(sender); };
}

void TCustodyQueryForm::SetCaptions() {
  TQueryForm::SetCaptions();
  SetCaption(Profile().captionKey);
  conditions_.SetCaptions(this);
  for (const RowActionLine& line : kRowActions) (this->*line.action)->SetCaption(line.captionKey);
  m_pnlNormal->SetCaption("UI40305");
  m_pnlAdvance->SetCaption("UI40306");
  m_rgSelDate->SetCaption("UI40109");
  TranslateDateChoices();
}

void TCustodyQueryForm::AfterTranslate() {
  TQueryForm::AfterTranslate();
  TranslateDateChoices();
}

// The translation of a form does not include a radio group's items.
void TCustodyQueryForm::TranslateDateChoices() {
  for (std::size_t i = 0; i < std::size(kDateChoiceKeys); ++i) {
    m_rgSelDate->Items().SetStrings(i, TranslateKey(kDateChoiceKeys[i]));
  }
}

void TCustodyQueryForm::Construct() {
  TQueryForm::Construct();
  m_pCommon = std::make_unique<CQueryCommon>();
  m_pCommon->InitListColumns(m_lvMain, ClassName());
  m_strBsnCode = Profile().businessCode;
  LoadAccounts();
  m_strExportType = Profile().exportType;
  m_sumColumns.push_back(kSumColumn);
}

bool TCustodyQueryForm::LoadAccounts() {
  const bool flowsKnown = m_pCommon->LoadBusinessFlows(m_strBsnCode.c_str());
  accountsKnown_ = m_pCommon->LoadAccountCombo(m_cbxAcc, true) && flowsKnown;
  return accountsKnown_;
}

void TCustodyQueryForm::ResetForm() {
  TQueryForm::ResetForm();
  EmptyList();
  const TStrings& accounts = m_cbxAcc->Items();
  if (ShownBefore() && (accounts.Count() == 0 || accounts[0].empty())) LoadAccounts();
  m_cbxBankNo->Clear();
  ShowOfferedActions();
  if (Profile().advanceOpen) m_pnlAdvance->SetRollState(false);
  m_bDateByRadio = true;
  m_rgSelDate->SetItemIndex(static_cast<int>(norvik::QuickDate::kOther));
  conditions_.Empty(Emptied::kAtShow);
  LoadDictionaries();
  m_cbxAcc->SetItemIndex(0);
  StartAccount();
  // A screen that was closed by its button doesn't open with the focus on it again.
  SetActiveControl(m_cbxAcc);
  m_lvMainClick(this);
}

void TCustodyQueryForm::ShowOfferedActions() {
  for (TAction* action : {m_actDetail, m_actAudit, m_actSynState, m_actViewAuditFoot, m_actDelete,
                          m_actPrintSet, m_actPrint, m_actReason}) {
    action->SetVisible(false);
  }
  m_actSum->SetVisible(true);
}

void TCustodyQueryForm::FormClose(TObject* sender) {
  conditions_.Empty(Emptied::kAtClose);
  TQueryForm::FormClose(sender);
}

void TCustodyQueryForm::FormDestroy() {
  m_pCommon.reset();
  TQueryForm::FormDestroy();
}

void TCustodyQueryForm::m_cbxAccChange(TObject*) {
  m_pCommon->SetControlHint(m_cbxAcc);
  corvane::List institutions;
  const std::string account = m_cbxAcc->GetKey();
  if (account != kNoChoiceKey) {
    corvane::CorvaneStream request;
    corvane::CorvaneStream answer;
    request.addField(corvane::Field("SRC", "1"));
    corvane::List accounts;
    corvane::Row row;
    row["CUSTACC"] = account;
    accounts.addRow(row);
    norvik::AddUserData(request, accounts);
    if (!m_pCommon->SendRequest(kInstitutionsTransaction, request, answer, this)) return;
    institutions = answer.getList(norvik::kAnswerList);
  }
  ShowInstitutions(institutions);
}

void TCustodyQueryForm::ShowInstitutions(const corvane::List& institutions) {
  std::vector<std::string> numbers;
  std::vector<std::string> entries;
  for (const corvane::Row& row : institutions) {
    numbers.push_back(row.getValue("AGTBHNM"));
    entries.push_back(numbers.back() + "-" + g_pBankInfo->GetBankName(numbers.back()));
  }
  m_cbxBankNo->Clear();
  m_cbxBankNo->Keys().Assign(std::move(numbers));
  m_cbxBankNo->Names().Assign(entries);
  m_cbxBankNo->Items().Assign(std::move(entries));
  // A single institution leaves nothing to choose.
  if (institutions.size() != 1) {
    CQueryCommon::InsertNoChoiceEntry(m_cbxBankNo, g_pTranslate->Translate("UI40115"));
  }
  m_cbxBankNo->SetItemIndex(0);
}

void TCustodyQueryForm::m_rgSelDateClick(TObject*) {
  m_bDateByRadio = true;
  const auto [start, end] = QuickDates();
  m_pCommon->ApplyDateRadio(start, end, m_rgSelDate);
  m_bDateByRadio = false;
}

void TCustodyQueryForm::m_actQueryExecute(TObject* sender) {
  if (!CheckConditions() || !FindAccounts()) return;
  corvane::CorvaneStream request;
  corvane::CorvaneStream answer;
  BuildQueryRequest(request);
  bool answered = false;
  {
    const ActionOff off(this, m_actQuery);
    answered = m_pCommon->SendRequest(kQueryTransaction, request, answer, this);
  }
  if (answered) ShowQueryResult(answer);
  m_lvMainClick(sender);
  if (m_lvMain->CheckedCount() == 0) m_crbAllCheck->SetChecked(false);
  m_crbAllCheck->SetEnabled(m_lvMain->Items().Count() > 0);
}

// A query for no account at all would be answered, too: accounts that the host could not supply are requested
// once more.
bool TCustodyQueryForm::FindAccounts() {
  if (accountsKnown_) return true;
  if (!LoadAccounts()) return false;
  StartAccount();
  return true;
}

void TCustodyQueryForm::BuildQueryRequest(corvane::CorvaneStream& stream) {
  AddAccounts(stream);
  corvane::Row fields;
  for (const char* field : kRequestFields) fields[field];
  fields["BSNCODE"] = m_strBsnCode;
  conditions_.AddFields(fields, m_pnlAdvance->RollState());
  stream.addFields(fields);
}

void TCustodyQueryForm::AddAccounts(corvane::CorvaneStream& stream) {
  std::vector<std::string> accounts;
  if (m_cbxAcc->GetKey() == kNoChoiceKey) {
    accounts.assign(m_cbxAcc->Keys().begin() + 1, m_cbxAcc->Keys().end());
  } else {
    accounts.push_back(m_cbxAcc->GetKey());
  }
  corvane::List list;
  list.setAttribute("name", norvik::kAnswerList);
  for (const std::string& batch : norvik::AccountBatches(accounts)) {
    corvane::Row row;
    row["CUSTACC"] = batch;
    list.addRow(row);
  }
  stream.addList(list);
}

void TCustodyQueryForm::ShowQueryResult(corvane::CorvaneStream& answer) {
  EmptyList();
  corvane::List& rows = answer.getList(norvik::kAnswerList);
  if (rows.size() == 0) {
    ShowWarnMsg(TranslateKey(norvik::message::kNothingFound), nullptr);
    return;
  }
  BuildMissingColumns(*m_pCommon);
  for (const norvik::CodedColumn& column : Profile().codedColumns) {
    m_pCommon->DecodeDictColumn(rows, column.field, column.dictionary);
  }
  if (Profile().namesInstitutions) {
    for (corvane::Row& row : rows) {
      CQueryCommon::SetColumn(row, "BSNPUNM", g_pBankInfo->GetBankName(row.getValue("BSNPUNO")));
    }
  }
  m_pCommon->FillListView(m_lvMain, rows);
}

void TCustodyQueryForm::m_lvMainClick(TObject* sender) {
  // First, since nothing is requested from the host for it.
  FollowTicks();
  TQueryForm::m_lvMainClick(sender);
  if (Profile().outputAlwaysOn) m_actOutput->SetEnabled(true);
}

void TCustodyQueryForm::FollowTicks() {
  const bool one = m_lvMain->CheckedCount() == 1;
  for (const RowActionLine& line : kRowActions) (this->*line.action)->SetEnabled(one);
  if (one) m_selectedRow = corvane::Property(CheckedRecords()[0]);
}

void TCustodyQueryForm::m_lvMainMouseDown(TObject* sender, TMouseButton button, TShiftState, int, int) {
  if (button == mbRight) m_lvMainClick(sender);
}

void TCustodyQueryForm::m_actTicketInfoExecute(TObject*) {
  corvane::List records = CheckedRecords();
  if (records.size() == 0) return;
  const TFormPointer<TRecordInfoForm> view(NewRecordView());
  view->SetRecord(corvane::Property(records[0]));
  view->ShowModal();
}

void TCustodyQueryForm::m_actPrintExecute(TObject*) {
  PrintChecked(*m_pCommon);
}

void TCustodyQueryForm::m_actPrintSetExecute(TObject*) {
  m_pCommon->PrintSetup(ClassName());
}

bool TCustodyQueryForm::Refuse(const std::string& messageKey) {
  ShowWarnMsg(TranslateKey(messageKey), this);
  return false;
}

bool TCustodyQueryForm::CheckDates(const norvik::DateRangeRule& rule, TKVXDateTime* start,
                                   TKVXDateTime* end) {
  const norvik::DateRangeFault fault = norvik::CheckDateRange(rule, start->Text(), end->Text());
  if (fault.messageKey.empty()) return true;
  Refuse(fault.messageKey);
  if (fault.emptiesDates) {
    start->Clear();
    end->Clear();
  }
  return false;
}

Condition TCustodyQueryForm::AccountCondition(ConditionCell cell, const char* starName) {
  return {.control = &m_cbxAcc,
          .name = "m_cbxAcc",
          .labelName = "m_lbAcc",
          .captionKey = "UI44003",
          .designCaption = "代保管账号",
          .starName = starName,
          .cell = cell};
}

Condition TCustodyQueryForm::InstitutionCondition(ConditionCell cell, const char* starName) {
  return {.control = &m_cbxBankNo,
          .name = "m_cbxBankNo",
          .labelName = "m_lbBankNo",
          .captionKey = "UI44001",
          .designCaption = "代保管机构联行号",
          .starName = starName,
          .cell = cell,
          .field = "AGTBHNM"};
}

Condition TCustodyQueryForm::BillNumberCondition(ConditionCell cell, bool trimmed) {
  return {.control = &m_edNo,
          .name = "m_edNo",
          .labelName = "m_lbNo",
          .captionKey = "UI44008",
          .designCaption = "票号",
          .cell = cell,
          .input = norvik::TextInput(16),
          .emptied = Emptied::kAtClose,
          .field = "BILLNUM",
          .trimmed = trimmed};
}

Condition TCustodyQueryForm::BillTypeCondition(ConditionCell cell, const char* starName) {
  return {.control = &m_cbxType,
          .name = "m_cbxType",
          .labelName = "m_lbType",
          .captionKey = "UI44007",
          .designCaption = "票据类型",
          .starName = starName,
          .cell = cell,
          .field = "BILLTYP",
          .noChoice = kDefaultBillType};
}

Condition TCustodyQueryForm::BankRemarkCondition(ConditionCell cell) {
  return {.control = &m_cbxBankRmk,
          .name = "m_cbxBankRmk",
          .labelName = "m_lbBankRmk",
          .designCaption = "银行备注",
          .cell = cell,
          .field = "BKRMKTY"};
}
