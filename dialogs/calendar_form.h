// The form of PickDateTime: a month, a clock, or both. Callers use dialogs/date_calendar.h; tests build the
// form itself.
#pragma once

#include <string>

#include "framework/base/base_form.h"
#include "toolkit/buttons.h"
#include "toolkit/calendar.h"
#include "toolkit/conversion.h"
#include "toolkit/date_edit.h"
#include "toolkit/edits.h"
#include "toolkit/labels.h"
#include "toolkit/panels.h"
#include "toolkit/timer.h"

/// Tag is kConfirmed after the user has confirmed, otherwise 0. The seconds advance while the form is open.
class TDateCalendar : public TBaseForm {
  Q_OBJECT

 public:
  static constexpr int kConfirmed = 1;

  TDateCalendar(TComponent* owner, const std::string& text, TKVXDateType type);

  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void FormShow(TObject* sender) override;
  void ResetForm() override;

  /// The date-time of a text of 8 or 14 digits, with the time of `now` where there are 8; `now` for any other
  /// text.
  static TDateTime Parse(const std::string& text, TDateTime now);

  TTimer* m_time = nullptr;
  TbsSkinButton* m_btnok = nullptr;
  TbsSkinButton* m_btncancel = nullptr;
  TPanel* m_pnlmonth = nullptr;
  TPanel* m_pnltime = nullptr;
  TImage* m_imgMonth = nullptr;
  TBevel* m_bvlMonth = nullptr;
  TLabel* m_lblMonth = nullptr;
  TBevel* m_bvlTime = nullptr;
  TImage* m_imgTime = nullptr;
  TLabel* m_lblTime = nullptr;
  TEdit* m_edthour = nullptr;
  TUpDown* m_udhour = nullptr;
  TEdit* m_edtm = nullptr;
  TUpDown* m_udm = nullptr;
  TEdit* m_edts = nullptr;
  TUpDown* m_uds = nullptr;
  TMonthCalendar* m_MonthCalendar = nullptr;
  TDateTime m_dateTime;

 private:
  void BuildMonth();
  void BuildTime();
  void m_timeTimer(TObject* sender);
  void m_btnokClick(TObject* sender);
  void m_btncancelClick(TObject* sender);
  /// The calendar's day with the time of the three edits.
  TDateTime ShownDateTime() const;
  void ShowDateTime();

  const TKVXDateType type_;
};
