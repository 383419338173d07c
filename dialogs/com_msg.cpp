#include "dialogs/com_msg.h"

#include <algorithm>
#include <utility>

#include "dialogs/font_fit.h"
#include "toolkit/screen.h"

namespace {

// The design, in pixels; a full line of the text is 44 bytes, 22 full-width characters.
constexpr int kWidth = 352;
constexpr int kHeight = 121;
constexpr int kTextLeft = 68;
constexpr int kTextTop = 20;
constexpr int kTextWidth = 264;
constexpr int kTextHeight = 42;
constexpr int kTextRight = kWidth - kTextLeft - kTextWidth;
constexpr int kButtonTop = 88;
constexpr int kButtonWidth = 75;
constexpr int kButtonHeight = 19;
constexpr int kButtonGap = 20;
constexpr int kButtonLift = 5;

constexpr int kBytesInLine = 44;
constexpr int kLineHeight = 14;

// What differs between the three modes; an empty caption hides the right button.
struct ModeDesign {
  const char* form;
  const char* leftButton;
  const char* rightButton;
  int icon;
};

const ModeDesign& DesignOf(TMessageMode mode) {
  static constexpr ModeDesign kDesigns[] = {
      {"UI12013", "UI12002", "", 1}, {"UI12014", "UI12002", "", 0}, {"UI12015", "UI12016", "UI12017", 2}};
  return kDesigns[static_cast<std::size_t>(mode)];
}

}  // namespace

TFrmComMsg::TFrmComMsg(TComponent* owner, std::string text, TMessageMode mode)
    : TBaseForm(owner), text_(std::move(text)), mode_(mode) {}

int TFrmComMsg::ExtraHeight(const std::string& text) {
  const std::size_t lines = text.size() / kBytesInLine + 1 + corvane::StringVector(text, "\r\n", true).size();
  const int maximum = Screen->Height() / 2;  // a very long text leaves the buttons on the screen
  return std::clamp(static_cast<int>(std::min<std::size_t>(lines, 10000)) * kLineHeight - 42, 0, maximum);
}

void TFrmComMsg::BuildControls() {
  TBaseForm::BuildControls();
  m_Img = NewComponent<TImage>(this, "m_Img");
  m_lblInfo = NewComponent<TLabel>(this, "m_lblInfo");
  m_memo = NewComponent<TMemo>(this, "m_memo");
  m_imgList = NewComponent<TImageList>(this, "m_imgList");
  m_btnOk = NewComponent<TbsSkinButton>(this, "m_btnOk");
  m_btnNo = NewComponent<TbsSkinButton>(this, "m_btnNo");
  const std::initializer_list<TControl*> controls = {m_Img, m_lblInfo, m_memo, m_btnOk, m_btnNo};
  for (TControl* control : controls) control->SetParent(this);
  m_imgList->SetSize(32);
  for (const TStockImage icon : {siWarning, siInformation, siQuestion}) m_imgList->Add(icon);
  SetBorderStyle(bsDialog);
  SetFormStyle(fsStayOnTop);
  SetPosition(poOwnerFormCenter);
  m_Img->SetBounds(20, 18, 32, 32);
  m_lblInfo->SetBounds(kTextLeft, kTextTop, kTextWidth, kTextHeight);
  m_lblInfo->SetWordWrap(true);
  m_lblInfo->SetLayout(tlTop);
  m_memo->SetVisible(false);
  m_memo->SetReadOnly(true);
  m_memo->SetScrollBars(ssVertical);
  m_btnOk->SetBounds(0, kButtonTop, kButtonWidth, kButtonHeight);
  m_btnNo->SetBounds(0, kButtonTop, kButtonWidth, kButtonHeight);
  m_btnOk->OnClick = [this](TObject* sender) { m_btnOkClick(sender); };
  m_btnNo->OnClick = [this](TObject* sender) { m_btnNoClick(sender); };
}

void TFrmComMsg::SetCaptions() {
  const ModeDesign& design = DesignOf(mode_);
  SetCaption(design.form);
  m_btnOk->SetCaption(design.leftButton);
  m_btnNo->SetCaption(design.rightButton);
  m_btnNo->SetVisible(design.rightButton[0] != '\0');
  m_Img->SetPicture(m_imgList, design.icon, 32);
}

void TFrmComMsg::Construct() {
  TBaseForm::Construct();
  m_lblInfo->SetCaption(text_);
  m_lblInfo->SetHeight(kTextHeight + ExtraHeight(text_));
  Arrange();
}

void TFrmComMsg::ResetForm() {
  TBaseForm::ResetForm();
  FitToFont();
  SetDefaultButton(m_btnOk);
  SetCancelButton(m_btnNo->Visible() ? m_btnNo : m_btnOk);
  SetActiveControl(m_btnOk);
}

// The designed size holds for the smallest font; a larger one widens the text and pushes the buttons down.
void TFrmComMsg::FitToFont() {
  m_lblInfo->SetWidth(TextWidth(*m_lblInfo, kBytesInLine / 2, kTextWidth));
  m_lblInfo->SetHeight(TextHeight(*m_lblInfo, text_, m_lblInfo->Width(), m_lblInfo->Height()));
  const bool fits = TextFits(*m_lblInfo, text_, m_lblInfo->Width());
  m_lblInfo->SetVisible(fits);
  m_memo->SetVisible(!fits);
  if (!fits) m_memo->SetText(text_);
  for (TbsSkinButton* button : {m_btnOk, m_btnNo}) FitButton(*button, kButtonWidth, kButtonHeight);
  Arrange();
}

// The buttons are below the text: one in the middle, two there as a group.
void TFrmComMsg::Arrange() {
  const int extra = m_lblInfo->Height() - kTextHeight;
  m_memo->SetBounds(kTextLeft, kTextTop, m_lblInfo->Width(), m_lblInfo->Height());
  SetWidth(kTextLeft + m_lblInfo->Width() + kTextRight);
  SetHeight(kHeight + extra + m_btnOk->Height() - kButtonHeight);
  const int group = m_btnOk->Width() + (m_btnNo->Visible() ? kButtonGap + m_btnNo->Width() : 0);
  m_btnOk->SetLeft((ClientWidth() - group) / 2);
  m_btnNo->SetLeft(m_btnOk->Left() + m_btnOk->Width() + kButtonGap);
  for (TbsSkinButton* button : {m_btnOk, m_btnNo}) button->SetTop(kButtonTop + extra - kButtonLift);
}

void TFrmComMsg::m_btnOkClick(TObject*) {
  SetTag(kConfirmed);
  Close();
}

void TFrmComMsg::m_btnNoClick(TObject*) {
  SetTag(0);
  Close();
}
