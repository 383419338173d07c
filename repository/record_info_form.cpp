#include "repository/record_info_form.h"

#include <algorithm>

#include "host/translate.h"
#include "repository/caption_value.h"
#include "toolkit/buttons.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/panels.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

namespace {

constexpr int kWidth = 620;
constexpr int kHeight = 640;
constexpr int kFreeHeight = 120;  // of the screen
constexpr int kMargin = 10;
constexpr int kGap = 6;

constexpr const char* kFirstTypeKey = "UI40116";

}  // namespace

TRecordInfoForm::TRecordInfoForm(TComponent* owner, std::vector<norvik::RecordPanel> panels)
    : TBaseForm(owner), panels_(std::move(panels)) {}

void TRecordInfoForm::BuildControls() {
  TBaseForm::BuildControls();
  SetBorderStyle(bsDialog);
  SetPosition(poOwnerFormCenter);
  SetWidth(kWidth);
  SetHeight(std::min(kHeight, Screen->Height() - kFreeHeight));
  m_tbsSkinScrollBox = NewComponent<TbsSkinScrollBox>(this, "m_tbsSkinScrollBox");
  m_sbRightBar = NewComponent<TbsSkinScrollBar>(this, "m_sbRightBar", sbVertical);
  m_sbRightBar->AttachTo(m_tbsSkinScrollBox);
  m_pnBottom = NewComponent<TPanel>(this, "m_pnBottom");
  m_btnClose = NewComponent<TbsSkinButton>(this, "m_btnClose");
  m_btnClose->OnClick = [this](TObject* sender) { m_btnCloseClick(sender); };
  SetCancelButton(m_btnClose);
  TColumnLayout form(this);
  form.SetMargins(kMargin, kMargin, kMargin, kMargin);
  form.SetSpacing(kGap);
  form.Add(m_tbsSkinScrollBox, 1);
  form.Add(m_pnBottom);
  TRowLayout bottom(m_pnBottom);
  bottom.AddStretch();
  bottom.Add(m_btnClose);
  TColumnLayout box(m_tbsSkinScrollBox);
  box.SetSpacing(kGap);
  for (const norvik::RecordPanel& panel : panels_) {
    BuildPanel(panel);
    box.Add(rollUps_.back());
  }
  box.AddStretch();
  rollUps_.front()->OnChangeRollState = [this](TObject* sender) { m_spBillInfoChangeRollState(sender); };
}

void TRecordInfoForm::BuildPanel(const norvik::RecordPanel& panel) {
  auto* rollUp = NewComponent<TbsSkinExPanel>(this, panel.name);
  rollUp->SetCaption(Ansi(panel.designCaption));
  rollUps_.push_back(rollUp);
  TGridLayout grid(rollUp);
  grid.SetMargins(kMargin, kMargin, kMargin, kMargin);
  grid.SetSpacing(kGap);
  grid.SetColumnStretch(1, 1);
  for (std::size_t i = 0; i < panel.rows.size(); ++i) {
    const norvik::RecordRow& row = panel.rows[i];
    const auto [caption, value] =
        norvik::PutCaptionValue(this, grid, static_cast<int>(i), 0, row.label, row.designCaption);
    rows_.push_back({row, caption, value});
  }
}

void TRecordInfoForm::SetCaptions() {
  SetCaption("UI44399");
  m_btnClose->SetCaption("UI41187");
  for (const ShownRow& shown : rows_) {
    if (*shown.row.captionKey != '\0') shown.caption->SetCaption(shown.row.captionKey);
  }
}

void TRecordInfoForm::SetRecord(corvane::Property record) {
  m_record = std::move(record);
}

void TRecordInfoForm::ResetForm() {
  TBaseForm::ResetForm();
  const bool firstType = IsFirstType();
  for (const ShownRow& shown : rows_) ShowRow(shown, firstType);
  // The focus on a panel would scroll the record's beginning out of sight.
  SetActiveControl(m_btnClose);
}

bool TRecordInfoForm::IsFirstType() const {
  return m_record.getValue("BILLTYP") == g_pTranslate->Translate(kFirstTypeKey);
}

void TRecordInfoForm::ShowRow(const ShownRow& shown, bool firstType) {
  const norvik::RecordRow& row = shown.row;
  const char* field = row.field;
  if (row.firstType != nullptr) {
    const bool hidden = firstType && *row.firstType->field == '\0';
    shown.caption->SetVisible(!hidden);
    shown.value->SetVisible(!hidden);
    // The form has been translated before the record is filled in.
    shown.caption->SetCaption(
        TranslateKey(firstType && !hidden ? row.firstType->captionKey : row.captionKey));
    if (firstType) field = row.firstType->field;
  }
  const std::string value = m_record.getValue(field);
  shown.value->SetCaption(value.empty() ? row.whenEmpty : value);
}

void TRecordInfoForm::m_btnCloseClick(TObject*) {
  Close();
}

void TRecordInfoForm::m_spBillInfoChangeRollState(TObject*) {
  if (rollUps_.front()->RollState() || !IsFirstType()) return;
  for (const ShownRow& shown : rows_) {
    if (shown.row.firstType == nullptr || *shown.row.firstType->field != '\0') continue;
    shown.caption->SetVisible(false);
    shown.value->SetVisible(false);
  }
}
