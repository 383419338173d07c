#include "dialogs/calendar_form.h"

#include <QLocale>

#include "dialogs/date_calendar.h"
#include "dialogs/validators.h"
#include "toolkit/application.h"
#include "toolkit/conversion.h"
#include "toolkit/layout.h"

namespace {

constexpr int kLastSecond = 59;
constexpr double kHoursOfDay = 24;
constexpr double kMinutesOfDay = 24 * 60;
constexpr double kSecondsOfDay = 24 * 60 * 60;

// Names of months and days in the host's language, which its character set identifies.
QLocale LocaleOf(std::uint8_t charset) {
  if (charset == kSimplifiedChinese) return QLocale(QLocale::Chinese, QLocale::China);
  return charset == kTraditionalChinese ? QLocale(QLocale::Chinese, QLocale::Taiwan)
                                        : QLocale(QLocale::English);
}

const char* PatternOf(TKVXDateType type) {
  if (type == dtDate) return "yyyymmdd";
  return type == dtTime ? "hhnnss" : "yyyymmddhhnnss";
}

}  // namespace

TDateCalendar::TDateCalendar(TComponent* owner, const std::string& text, TKVXDateType type)
    : TBaseForm(owner), m_dateTime(Parse(text, Now())), type_(type) {}

TDateTime TDateCalendar::Parse(const std::string& text, TDateTime now) {
  if ((text.size() != 8 && text.size() != 14) || !IsAllDigits(text)) return now;
  const auto number = [](const std::string& digits, std::size_t at, std::size_t count) {
    return ParseNumber(digits.substr(at, count));
  };
  const std::string time = text.size() == 14 ? text.substr(8) : FormatDateTime("hhnnss", now);
  try {
    return EncodeDate(number(text, 0, 4), number(text, 4, 2), number(text, 6, 2)) +
           number(time, 0, 2) / kHoursOfDay + number(time, 2, 2) / kMinutesOfDay +
           number(time, 4, 2) / kSecondsOfDay;
  } catch (const EConvertError&) {
    return now;
  }
}

void TDateCalendar::BuildControls() {
  TBaseForm::BuildControls();
  m_time = NewComponent<TTimer>(this, "m_time");
  m_time->SetInterval(1000);
  m_time->OnTimer = [this](TObject* sender) { m_timeTimer(sender); };
  m_pnlmonth = NewComponent<TPanel>(this, "m_pnlmonth");
  m_pnltime = NewComponent<TPanel>(this, "m_pnltime");
  BuildMonth();
  BuildTime();
  m_btnok = NewComponent<TbsSkinButton>(this, "m_btnok");
  m_btncancel = NewComponent<TbsSkinButton>(this, "m_btncancel");
  m_btnok->OnClick = [this](TObject* sender) { m_btnokClick(sender); };
  m_btncancel->OnClick = [this](TObject* sender) { m_btncancelClick(sender); };
  TColumnLayout column(this);
  column.SetMargins(12, 12, 12, 12);
  column.SetSpacing(10);
  column.Add(m_pnlmonth, 1);
  column.Add(m_pnltime);
  TRowLayout buttons = column.AddRow();
  buttons.SetSpacing(8);
  buttons.AddStretch();
  buttons.Add(m_btnok);
  buttons.Add(m_btncancel);
  SetBorderStyle(bsDialog);
  SetPosition(poMainFormCenter);
}

void TDateCalendar::BuildMonth() {
  m_imgMonth = NewComponent<TImage>(this, "m_imgMonth");
  m_lblMonth = NewComponent<TLabel>(this, "m_lblMonth");
  m_bvlMonth = NewComponent<TBevel>(this, "m_bvlMonth");
  m_MonthCalendar = NewComponent<TMonthCalendar>(this, "m_MonthCalendar");
  m_imgMonth->SetStock(siCalendar, 20);
  m_MonthCalendar->OnDblClick = [this](TObject* sender) { m_btnokClick(sender); };
  TColumnLayout column(m_pnlmonth);
  column.SetSpacing(6);
  TRowLayout heading = column.AddRow();
  heading.SetSpacing(6);
  heading.Add(m_imgMonth);
  heading.Add(m_lblMonth, 1);
  column.Add(m_bvlMonth);
  column.Add(m_MonthCalendar, 1);
}

void TDateCalendar::BuildTime() {
  m_imgTime = NewComponent<TImage>(this, "m_imgTime");
  m_lblTime = NewComponent<TLabel>(this, "m_lblTime");
  m_bvlTime = NewComponent<TBevel>(this, "m_bvlTime");
  m_imgTime->SetStock(siClock, 20);
  m_pnltime->OnClick = [this](TObject* sender) { m_btnokClick(sender); };
  TColumnLayout column(m_pnltime);
  column.SetSpacing(6);
  TRowLayout heading = column.AddRow();
  heading.SetSpacing(6);
  heading.Add(m_imgTime);
  heading.Add(m_lblTime, 1);
  column.Add(m_bvlTime);
  TRowLayout fields = column.AddRow();
  fields.SetSpacing(2);
  const struct {
    TEdit*& edit;
    const char* editName;
    TUpDown*& upDown;
    const char* upDownName;
    int last;
  } clock[] = {{m_edthour, "m_edthour", m_udhour, "m_udhour", 23},
               {m_edtm, "m_edtm", m_udm, "m_udm", 59},
               {m_edts, "m_edts", m_uds, "m_uds", kLastSecond}};
  for (const auto& field : clock) {
    field.edit = NewComponent<TEdit>(this, field.editName);
    field.edit->SetReadOnly(true);
    field.edit->SetAlignment(taRightJustify);
    field.upDown = NewComponent<TUpDown>(this, field.upDownName);
    field.upDown->SetAssociate(field.edit);
    field.upDown->SetRange(0, field.last);
    fields.Add(field.edit, 1);
    fields.Add(field.upDown);
    if (field.last != kLastSecond || field.edit != m_edts) fields.AddSpace(8);
  }
}

void TDateCalendar::SetCaptions() {
  SetCaption("UI12093");
  m_btnok->SetCaption("UI12002");
  m_btncancel->SetCaption("UI12003");
  m_lblMonth->SetCaption("UI12094");
  m_lblTime->SetCaption("UI12095");
}

void TDateCalendar::Construct() {
  TBaseForm::Construct();
  m_pnlmonth->SetVisible(type_ != dtTime);
  m_pnltime->SetVisible(type_ != dtDate);
  m_time->SetEnabled(true);
}

void TDateCalendar::FormShow(TObject* sender) {
  TBaseForm::FormShow(sender);
  ShowDateTime();
}

void TDateCalendar::ResetForm() {
  TBaseForm::ResetForm();
  SetCancelButton(m_btncancel);
  SetActiveControl(m_pnlmonth->Visible() ? static_cast<TWinControl*>(m_MonthCalendar) : m_btnok);
  m_MonthCalendar->Widget()->setLocale(LocaleOf(m_nFontCharset));
}

TDateTime TDateCalendar::ShownDateTime() const {
  return m_MonthCalendar->Date() + EncodeTime(m_udhour->Position(), m_udm->Position(), m_uds->Position(), 0);
}

void TDateCalendar::ShowDateTime() {
  int hour = 0, minute = 0, second = 0, millisecond = 0;
  DecodeTime(m_dateTime, hour, minute, second, millisecond);
  m_MonthCalendar->SetDate(m_dateTime);
  m_udhour->SetPosition(hour);
  m_udm->SetPosition(minute);
  m_uds->SetPosition(second);
}

// Counts the second up, so that the proposed time stays the present one; beyond the last second the day may
// change.
void TDateCalendar::m_timeTimer(TObject*) {
  m_time->SetEnabled(false);
  if (m_uds->Position() != kLastSecond) {
    m_uds->SetPosition(m_uds->Position() + 1);
  } else {
    m_dateTime = IncSecond(ShownDateTime());
    ShowDateTime();
  }
  m_time->SetEnabled(true);
}

void TDateCalendar::m_btnokClick(TObject*) {
  m_time->SetEnabled(false);
  m_dateTime = ShownDateTime();
  SetTag(kConfirmed);
  Close();
}

void TDateCalendar::m_btncancelClick(TObject*) {
  m_time->SetEnabled(false);
  SetTag(0);
  Close();
}

std::string PickDateTime(const std::string& text, TKVXDateType type) {
  const TFormPointer<TDateCalendar> form(CreateForm<TDateCalendar>(Application, text, type));
  form->ShowModal();
  return form->Tag() == TDateCalendar::kConfirmed ? FormatDateTime(PatternOf(type), form->m_dateTime) : text;
}
