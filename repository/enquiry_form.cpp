#include "repository/enquiry_form.h"

#include <string>
#include <utility>

#include "host/translate.h"
#include "toolkit/action.h"
#include "toolkit/buttons.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/panels.h"

using norvik::HeadRow;
using norvik::HeadRule;

namespace {

constexpr const char* kExportType = "ECDSHISDTL";
constexpr int kFieldsOfRow = 3;  // of the head
constexpr int kCellsOfField = 2;
constexpr int kGap = 8;

struct TypeTexts {
  const char* code;
  const char* typeKey;     // null: no text
  const char* captionKey;  // of the payer's bank number
};
constexpr TypeTexts kTypes[] = {{"AC01", "UI40116", "UI44726"}, {"AC02", "UI40117", "UI44018"}};
constexpr TypeTexts kUnknownType = {"", nullptr, "UI44339"};

const TypeTexts& TypeOf(const corvane::Row& record) {
  const std::string code = record.getValue("BILLTYP");
  for (const TypeTexts& type : kTypes) {
    if (code == type.code) return type;
  }
  return kUnknownType;
}

constexpr HeadRow kTotalRow = {"m_lbTotalNum", "UI44305", "总记录数", "TOTALNM"};
constexpr HeadRow kNumberRow = {"m_lbTicketNo", "UI44307", "票号", "BILLNUM"};
constexpr HeadRow kTypeRow = {"m_lbType", "UI44308", "票据类型", "BILLTYP", HeadRule::kBillType};
constexpr HeadRow kIssueRow = {"m_lbOutData", "UI44310", "出票日期", "ISSDATE"};
constexpr HeadRow kDueRow = {"m_lbDeadData", "UI44311", "到期日", "DUEDATE"};
constexpr HeadRow kAmountRow = {"m_lbMoney", "UI44312", "票面金额", "PMMONEY"};

constexpr HeadRow PayerRow(const char* captionKey) {
  return {"m_lbLHNo", captionKey, "承兑人支付联行号", "ACCPBNM", HeadRule::kByBillType};
}

constexpr HeadRow kHistoryHead[] = {kTotalRow, kNumberRow, kTypeRow,  PayerRow("UI44360"),
                                    kIssueRow, kDueRow,    kAmountRow};
constexpr HeadRow kSignHead[] = {kTotalRow, kNumberRow, kTypeRow,  PayerRow(""),
                                 kIssueRow, kDueRow,    kAmountRow};
constexpr HeadRow kBigResultHead[] = {kTotalRow, kNumberRow};

}  // namespace

namespace norvik {

const EnquiryProfile kHistoryProfile = {"UI44318", kHistoryHead};
const EnquiryProfile kSignProfile = {"UI44382", kSignHead};
const EnquiryProfile kBigResultProfile = {"UI44383", kBigResultHead};

}  // namespace norvik

TEnquiryForm::TEnquiryForm(TComponent* owner, const norvik::EnquiryProfile& profile)
    : TDetailForm(owner), profile_(profile) {}

TEnquiryForm::~TEnquiryForm() = default;

void TEnquiryForm::BuildControls() {
  TDetailForm::BuildControls();
  MakeControl(this, m_pnlNormal, "m_pnlNormal");
  m_pnlNormal->SetBordered(true);
  TGridLayout grid(m_pnlNormal);
  grid.SetMargins(kGap, kGap, kGap, kGap);
  grid.SetSpacing(kGap);
  for (int field = 0; field < kFieldsOfRow; ++field) grid.SetColumnStretch(field * kCellsOfField + 1, 1);
  for (const HeadRow& row : profile_.head) {
    const int place = static_cast<int>(head_.size());
    head_.push_back(norvik::PutCaptionValue(this, grid, place / kFieldsOfRow,
                                            place % kFieldsOfRow * kCellsOfField, row.label,
                                            row.designCaption));
  }
  TColumnLayout center(m_pnCenter);
  center.SetSpacing(kFrameGap);
  center.Add(m_pnlNormal);
  center.Add(m_pnlData, 1);
}

void TEnquiryForm::SetCaptions() {
  TDetailForm::SetCaptions();
  SetCaption(profile_.captionKey);
  for (std::size_t i = 0; i < head_.size(); ++i) {
    const char* key = profile_.head[i].captionKey;
    if (*key != '\0') head_[i].caption->SetCaption(key);
  }
}

void TEnquiryForm::Construct() {
  TDetailForm::Construct();
  m_pCommon = std::make_unique<CDetailCommon>();
  m_pCommon->InitListColumns(m_lvMain, ClassName());
  m_strExportType = kExportType;
}

void TEnquiryForm::SetRecord(corvane::Row record) {
  m_record = std::move(record);
}

void TEnquiryForm::ResetForm() {
  TDetailForm::ResetForm();
  for (TAction* action : {m_actAudit, m_actPrint, m_actPrintSet}) action->SetVisible(false);
  m_btnAudit->SetVisible(false);
  bsSkinSpeedButton1->SetVisible(false);
  FillHead();
  m_lvMainClick(this);
  m_actSum->SetVisible(true);
  if (TListItem* selected = m_lvMain->Selected()) selected->SetState(kFocusedState, true);
}

void TEnquiryForm::FillHead() {
  const TypeTexts& type = TypeOf(m_record);
  for (std::size_t i = 0; i < head_.size(); ++i) {
    const HeadRow& row = profile_.head[i];
    std::string value = m_record.getValue(row.field);
    if (row.rule == HeadRule::kBillType) {
      value = type.typeKey == nullptr ? std::string() : g_pTranslate->Translate(type.typeKey);
    }
    // The form has been translated before the head is filled.
    if (row.rule == HeadRule::kByBillType) head_[i].caption->SetCaption(TranslateKey(type.captionKey));
    head_[i].value->SetCaption(value);
  }
}

void TEnquiryForm::FormDestroy() {
  m_pCommon.reset();
  TDetailForm::FormDestroy();
}
