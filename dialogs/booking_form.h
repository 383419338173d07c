// The form of ShowBookingDlg: at once, or on a day that the user chooses. Callers use dialogs/booking.h;
// tests build the form itself.
#pragma once

#include <memory>
#include <string>

#include "framework/base/base_form.h"
#include "framework/business/query_common.h"
#include "toolkit/buttons.h"
#include "toolkit/date_edit.h"
#include "toolkit/labels.h"
#include "toolkit/radio_group.h"

/// Tag is kConfirmed after the user has confirmed, otherwise 0.
class TfrmBookingProc : public TBaseForm {
  Q_OBJECT

 public:
  static constexpr int kConfirmed = 1;
  /// Items of m_grpPreFlg.
  static constexpr int kAtOnce = 0;
  static constexpr int kScheduled = 1;

  TfrmBookingProc(TComponent* owner, bool startToday) : TBaseForm(owner), m_startToday(startToday) {}

  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void ResetForm() override;
  void FormDestroy() override;

  /// The key of the message for a date that can't be accepted, empty for a valid one: a day of the calendar,
  /// by number not before `firstDate` and not after the same day of the month following `bankDate` (or that
  /// month's last day), both included.
  static std::string DateFault(const std::string& date, const std::string& firstDate,
                               const std::string& bankDate);

  TbsSkinButton* m_btnOk = nullptr;
  TLabel* m_lblPreFlg = nullptr;
  TbsSkinRadioGroup* m_grpPreFlg = nullptr;
  TLabel* m_lbStar = nullptr;
  TLabel* m_lblPreFlgDate = nullptr;
  TKVXDateTime* m_edtPreFlgDate = nullptr;
  TLabel* m_lbStar3 = nullptr;
  TLabel* m_lbTitle = nullptr;
  TImage* m_imgEdit = nullptr;
  TbsSkinButton* m_btnCancel = nullptr;

 private:
  void PlaceControls();
  void m_grpPreFlgClick(TObject* sender);
  void m_btnOkClick(TObject* sender);
  void m_btnCancelClick(TObject* sender);
  /// Warns of a date that can't be accepted; true for a valid one.
  bool CheckChosenDate();

  std::unique_ptr<CQueryCommon> m_common;
  const bool m_startToday;
  std::string m_minDate;  // first day that can be chosen, "yyyymmdd"
};
