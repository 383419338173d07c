#include "dialogs/booking_form.h"

#include "dialogs/booking.h"
#include "dialogs/form_owner.h"
#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "dialogs/validators.h"
#include "framework/rules/date_range.h"
#include "toolkit/layout.h"

namespace {

constexpr int kImageSize = 32;

}  // namespace

std::string TfrmBookingProc::DateFault(const std::string& date, const std::string& firstDate,
                                       const std::string& bankDate) {
  if (date.empty()) return norvik::message::kBookingDateMissing;
  if (!CheckDate(date).empty()) return norvik::message::kBookingDateInvalid;
  const std::int32_t day = ParseNumber(date);
  if (day < ParseNumber(firstDate)) return norvik::message::kBookingDateEarly;
  return day > ParseNumber(norvik::NextMonthDate(bankDate)) ? norvik::message::kBookingDateLate : "";
}

void TfrmBookingProc::BuildControls() {
  TBaseForm::BuildControls();
  m_btnOk = NewComponent<TbsSkinButton>(this, "m_btnOk");
  m_lblPreFlg = NewComponent<TLabel>(this, "m_lblPreFlg");
  m_grpPreFlg = NewComponent<TbsSkinRadioGroup>(this, "m_grpPreFlg");
  m_lbStar = NewComponent<TLabel>(this, "m_lbStar");
  m_lblPreFlgDate = NewComponent<TLabel>(this, "m_lblPreFlgDate");
  m_edtPreFlgDate = NewComponent<TKVXDateTime>(this, "m_edtPreFlgDate");
  m_lbStar3 = NewComponent<TLabel>(this, "m_lbStar3");
  m_lbTitle = NewComponent<TLabel>(this, "m_lbTitle");
  m_imgEdit = NewComponent<TImage>(this, "m_imgEdit");
  m_btnCancel = NewComponent<TbsSkinButton>(this, "m_btnCancel");
  m_grpPreFlg->SetColumns(2);
  m_imgEdit->SetStock(siQuestion, kImageSize);
  m_lbTitle->SetWordWrap(true);
  for (TLabel* star : {m_lbStar, m_lbStar3}) {
    star->SetCaption("*");
    star->Font()->SetColor(clRed);
  }
  m_grpPreFlg->OnClick = [this](TObject* sender) { m_grpPreFlgClick(sender); };
  m_btnOk->OnClick = [this](TObject* sender) { m_btnOkClick(sender); };
  m_btnCancel->OnClick = [this](TObject* sender) { m_btnCancelClick(sender); };
  PlaceControls();
  SetBorderStyle(bsDialog);
  SetPosition(poOwnerFormCenter);
  SetWidth(430);
}

void TfrmBookingProc::PlaceControls() {
  TColumnLayout column(this);
  column.SetMargins(16, 14, 16, 12);
  column.SetSpacing(12);
  TRowLayout title = column.AddRow();
  title.SetSpacing(12);
  title.Add(m_imgEdit, 0, caTop);
  title.Add(m_lbTitle, 1);
  TGridLayout fields = column.AddGrid();
  fields.SetSpacing(8);
  fields.PutField(0, 0, m_lblPreFlg, m_grpPreFlg, m_lbStar);
  fields.PutField(1, 0, m_lblPreFlgDate, m_edtPreFlgDate, m_lbStar3);
  fields.SetColumnStretch(1, 1);
  column.AddStretch();
  TRowLayout buttons = column.AddRow();
  buttons.SetSpacing(8);
  buttons.AddStretch();
  buttons.Add(m_btnOk);
  buttons.Add(m_btnCancel);
}

void TfrmBookingProc::SetCaptions() {
  SetCaption("UI40185");
  m_btnOk->SetCaption("UI12205");
  m_btnCancel->SetCaption("UI12206");
  m_lblPreFlg->SetCaption("UI40185");
  m_lblPreFlgDate->SetCaption("UI40186");
  m_lbTitle->SetCaption("UI42969");
}

void TfrmBookingProc::Construct() {
  TBaseForm::Construct();
  m_common = std::make_unique<CQueryCommon>();
  m_edtPreFlgDate->SetDateTimeForm(
      [this](const std::string& date, TKVXDateType type) { return ShowDateCalendar(date, type); });
}

void TfrmBookingProc::FormDestroy() {
  TBaseForm::FormDestroy();
  m_common.reset();
}

void TfrmBookingProc::ResetForm() {
  TBaseForm::ResetForm();
  m_grpPreFlg->Items().Assign({TranslateKey("UI42069"), TranslateKey("UI42070")});
  m_grpPreFlg->SetItemIndex(kAtOnce);
  SetCancelButton(m_btnCancel);
  SetActiveControl(m_grpPreFlg);
}

void TfrmBookingProc::m_grpPreFlgClick(TObject*) {
  const bool scheduled = m_grpPreFlg->ItemIndex() == kScheduled;
  m_lblPreFlgDate->SetEnabled(scheduled);
  m_edtPreFlgDate->SetEnabled(scheduled);
  m_lbStar3->SetVisible(scheduled);
  m_edtPreFlgDate->Clear();
  if (!scheduled) return;
  const std::string bankDate = m_common->GetServerDate();
  m_edtPreFlgDate->SetText(m_startToday ? bankDate : m_common->NextDayDate(bankDate));
  m_minDate = m_edtPreFlgDate->Text();
}

bool TfrmBookingProc::CheckChosenDate() {
  const std::string fault = DateFault(m_edtPreFlgDate->Text(), m_minDate, m_common->GetServerDate());
  if (fault.empty()) return true;
  ShowWarnMsg(TranslateKey(fault), this);
  if (fault == norvik::message::kBookingDateInvalid) m_edtPreFlgDate->Clear();
  m_edtPreFlgDate->SetFocus();
  return false;
}

void TfrmBookingProc::m_btnOkClick(TObject*) {
  if (m_grpPreFlg->ItemIndex() == kScheduled && !CheckChosenDate()) return;
  SetTag(kConfirmed);
  Close();
}

void TfrmBookingProc::m_btnCancelClick(TObject*) {
  SetTag(0);
  Close();
}

bool ShowBookingDlg(TForm* owner, bool startToday, bool& scheduled, std::string& date) {
  const TFormPointer<TfrmBookingProc> form(CreateForm<TfrmBookingProc>(OwnerOf(owner), startToday));
  form->ShowModal();
  if (form->Tag() != TfrmBookingProc::kConfirmed) return false;
  scheduled = form->m_grpPreFlg->ItemIndex() == TfrmBookingProc::kScheduled;
  date = scheduled ? form->m_edtPreFlgDate->Text() : std::string();
  return true;
}
