// The edit for dates and times, whose picker the form gives. What is typed is limited to digits; whether it
// is a date is the validators' question (dialogs/validators.h).
#pragma once

#include <functional>
#include <string>

#include "toolkit/edits.h"

class QLabel;
class QToolButton;

/// Kinds of value: "yyyymmdd", "hhmmss", "yyyymmddhhmmss".
enum TKVXDateType { dtDate = 0, dtTime = 1, dtDateTime = 2 };

/// Lets the user choose a date: takes the present text and gives the chosen one, or the present one back.
using TKVXDateTimeForm = std::function<std::string(const std::string& text, TKVXDateType type)>;

/// A date as digits, with a button that opens a picker, as the key combination Alt+Down does. Only digits go
/// in, as many as the type has. What is typed is not checked for being a date.
class TKVXCustomDateTimeEdit : public TCustomEdit {
  Q_OBJECT

 public:
  /// Kind of value; dtDate at the start.
  TKVXDateType DateType() const { return type_; }
  void SetDateType(TKVXDateType type);
  /// The picker that the button opens; without one the button is off. A choice that differs runs OnChange;
  /// what the picker gives is not limited.
  void SetDateTimeForm(TKVXDateTimeForm form);
  /// Text of the label inside the control, in front of the digits; empty: no label.
  std::string LabelCaption() const { return labelCaption_; }
  void SetLabelCaption(const std::string& caption);
  /// Names the button after the edit, too: the name and "_button".
  void SetName(const std::string& name) override;
  /// Opens the picker as the button does; nothing while the edit is disabled, read-only or without a picker.
  void PickDate();

 protected:
  explicit TKVXCustomDateTimeEdit(TComponent* owner);
  void FontChanged() override;
  bool WidgetEvent(QWidget* widget, QEvent* event) override;

 private:
  void PlaceParts();

  TKVXDateType type_ = dtDate;
  TKVXDateTimeForm form_;
  std::string labelCaption_;
  QLabel* label_;
  QToolButton* button_;
};

/// The date edit that a form holds.
class TKVXDateTime : public TKVXCustomDateTimeEdit {
  Q_OBJECT

 public:
  explicit TKVXDateTime(TComponent* owner) : TKVXCustomDateTimeEdit(owner) {}
};
