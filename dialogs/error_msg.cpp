#include "dialogs/error_msg.h"

#include <algorithm>
#include <utility>

#include "dialogs/font_fit.h"
#include "toolkit/application.h"
#include "toolkit/clipboard.h"
#include "toolkit/text.h"

namespace {

// The design, in pixels, with the pane open.
constexpr int kWidth = 451;
constexpr int kHeight = 355;
constexpr int kMemoHeight = 205;
constexpr int kMemoRoom = 28;  // what opening the pane adds to its height
constexpr int kTextLeft = 66;
constexpr int kTextTop = 16;
constexpr int kTextWidth = 366;
constexpr int kTextHeight = 44;
constexpr int kTextRight = kWidth - kTextLeft - kTextWidth;
constexpr int kBelowText = 8;
constexpr int kSide = 12;
constexpr int kButtonWidth = 75;
constexpr int kButtonHeight = 25;
constexpr int kButtonGap = 8;
constexpr int kButtonTop = kHeight - kMemoHeight - kMemoRoom - kSide - kButtonHeight;
constexpr int kFullWidthCharacters = 30;  // in a line of the summary

}  // namespace

TFrmErrorMsg::TFrmErrorMsg(TComponent* owner, std::string summary, std::string detail)
    : TBaseForm(owner), summary_(std::move(summary)), detail_(std::move(detail)) {}

void TFrmErrorMsg::BuildControls() {
  TBaseForm::BuildControls();
  m_img = NewComponent<TImage>(this, "m_img");
  m_lblInfo = NewComponent<TLabel>(this, "m_lblInfo");
  Bevel1 = NewComponent<TBevel>(this, "Bevel1");
  m_btnMail = NewComponent<TbsSkinButton>(this, "m_btnMail");
  m_btnCopy = NewComponent<TbsSkinButton>(this, "m_btnCopy");
  m_btnDetail = NewComponent<TbsSkinButton>(this, "m_btnDetail");
  m_btnOK = NewComponent<TbsSkinButton>(this, "m_btnOK");
  m_memo = NewComponent<TMemo>(this, "m_memo");
  const std::initializer_list<TControl*> controls = {m_img,     m_lblInfo,   Bevel1,  m_btnMail,
                                                     m_btnCopy, m_btnDetail, m_btnOK, m_memo};
  for (TControl* control : controls) control->SetParent(this);
  SetBorderStyle(bsDialog);
  SetFormStyle(fsStayOnTop);
  SetPosition(poMainFormCenter);
  m_img->SetStock(siError, 32);
  m_img->SetBounds(18, 16, 32, 32);
  m_lblInfo->SetBounds(kTextLeft, kTextTop, kTextWidth, kTextHeight);
  m_lblInfo->SetWordWrap(true);
  m_lblInfo->SetLayout(tlTop);
  for (TbsSkinButton* button : {m_btnMail, m_btnCopy, m_btnDetail, m_btnOK}) {
    button->SetBounds(0, kButtonTop, kButtonWidth, kButtonHeight);
  }
  m_btnMail->SetVisible(false);
  m_memo->SetHeight(kMemoHeight);
  m_memo->SetReadOnly(true);
  m_memo->SetScrollBars(ssVertical);
  m_memo->OnChange = [this](TObject* sender) { m_memoChange(sender); };
  m_btnDetail->OnClick = [this](TObject* sender) { m_btnDetailClick(sender); };
  m_btnCopy->OnClick = [this](TObject* sender) { m_btnCopyClick(sender); };
  m_btnOK->OnClick = [this](TObject*) { Close(); };
}

void TFrmErrorMsg::SetCaptions() {
  SetCaption("UI12008");
  m_btnOK->SetCaption("UI12007");
  m_btnDetail->SetCaption("UI12010");
  m_btnCopy->SetCaption("UI12011");
}

void TFrmErrorMsg::Construct() {
  TBaseForm::Construct();
  m_lblInfo->SetCaption(summary_);
  m_memo->SetText(detail_);
  m_memoChange(m_memo);
  ShowDetail(false);
}

void TFrmErrorMsg::ResetForm() {
  TBaseForm::ResetForm();
  FitToFont();
  SetCancelButton(m_btnOK);
  SetActiveControl(m_btnOK);
}

void TFrmErrorMsg::FitToFont() {
  m_lblInfo->SetWidth(TextWidth(*m_lblInfo, kFullWidthCharacters, kTextWidth));
  m_lblInfo->SetHeight(TextHeight(*m_lblInfo, summary_, m_lblInfo->Width(), kTextHeight));
  for (TbsSkinButton* button : {m_btnCopy, m_btnDetail, m_btnOK})
    FitButton(*button, kButtonWidth, kButtonHeight);
  Arrange();
}

// Summary, line, buttons from the right, and the pane below the lower edge of the closed form.
void TFrmErrorMsg::Arrange() {
  const int extra = m_lblInfo->Height() - kTextHeight;
  const int closed = kButtonTop + extra + m_btnOK->Height() + kSide;
  SetWidth(kTextLeft + m_lblInfo->Width() + kTextRight);
  SetHeight(closed + (m_detailShown ? m_memo->Height() + kMemoRoom : 0));
  Bevel1->SetBounds(kSide, kTextTop + m_lblInfo->Height() + kBelowText, ClientWidth() - 2 * kSide, 2);
  int right = ClientWidth() - kSide;
  for (TbsSkinButton* button : {m_btnOK, m_btnDetail, m_btnCopy}) {
    right -= button->Width();
    button->SetLeft(right);
    button->SetTop(kButtonTop + extra);
    right -= kButtonGap;
  }
  m_memo->SetBounds(kSide, closed + (kMemoRoom - kSide) / 2, ClientWidth() - 2 * kSide, m_memo->Height());
}

void TFrmErrorMsg::ShowDetail(bool shown) {
  m_detailShown = shown;
  m_btnCopy->SetVisible(shown);
  m_memo->SetVisible(shown);
  Arrange();
}

void TFrmErrorMsg::m_btnDetailClick(TObject*) {
  ShowDetail(!m_detailShown);
  m_btnDetail->SetCaption(TranslateKey(m_detailShown ? "UI12009" : "UI12010"));
  FitToFont();
  Application->ProcessMessages();
}

void TFrmErrorMsg::m_btnCopyClick(TObject*) {
  Clipboard().Open();
  Clipboard().SetAsText(m_memo->Text());
  Clipboard().Close();
}

void TFrmErrorMsg::m_memoChange(TObject*) {
  m_btnCopy->SetEnabled(!Trim(m_memo->Text()).empty());
}
