// The record of one row, field by field, as it is in the list; nothing is requested from the bank. The
// screens open a view each. The three views differ in their tables of rows alone.
#pragma once

#include <string>
#include <vector>

#include "data/corvane.h"
#include "framework/base/base_form.h"
#include "repository/record_rows.h"

class TLabel;
class TPanel;
class TbsSkinButton;
class TbsSkinExPanel;
class TbsSkinScrollBar;
class TbsSkinScrollBox;

/// The base of the three views.
class TRecordInfoForm : public TBaseForm {
  Q_OBJECT

 public:
  void BuildControls() override;
  void SetCaptions() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  /// Fills the values from the record, by the bill's type.
  void ResetForm() override;

  /// Sets the record to show; before the form is shown. A field that it lacks shows as empty.
  void SetRecord(corvane::Property record);
  void m_btnCloseClick(TObject* sender);
  /// The panel of the bill was rolled up or opened: rows that its type hides remain hidden.
  void m_spBillInfoChangeRollState(TObject* sender);

  TbsSkinScrollBox* m_tbsSkinScrollBox = nullptr;
  TbsSkinScrollBar* m_sbRightBar = nullptr;
  TPanel* m_pnBottom = nullptr;
  TbsSkinButton* m_btnClose = nullptr;

 protected:
  /// `panels` are the view's tables.
  TRecordInfoForm(TComponent* owner, std::vector<norvik::RecordPanel> panels);

 private:
  struct ShownRow {
    norvik::RecordRow row;
    TLabel* caption;
    TLabel* value;
  };

  void BuildPanel(const norvik::RecordPanel& panel);
  bool IsFirstType() const;
  void ShowRow(const ShownRow& shown, bool firstType);

  std::vector<norvik::RecordPanel> panels_;
  std::vector<ShownRow> rows_;
  std::vector<TbsSkinExPanel*> rollUps_;
  corvane::Property m_record;
};

/// The record of a bill in custody.
class TfrmQryInfo : public TRecordInfoForm {
  Q_OBJECT

 public:
  explicit TfrmQryInfo(TComponent* owner) : TRecordInfoForm(owner, norvik::BillRecord()) {}
};

/// The record of an application.
class TfrmAppQryInfo : public TRecordInfoForm {
  Q_OBJECT

 public:
  explicit TfrmAppQryInfo(TComponent* owner) : TRecordInfoForm(owner, norvik::ApplicationRecord()) {}
};

/// The record of a business event.
class TfrmDetailQryInfo : public TRecordInfoForm {
  Q_OBJECT

 public:
  explicit TfrmDetailQryInfo(TComponent* owner) : TRecordInfoForm(owner, norvik::EventRecord()) {}
};
