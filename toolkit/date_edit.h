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
  TKVXDateType DateType() const { return type_; }
  void SetDateType(TKVXDateType type);
  /// The picker behind the button; without one the button is off. A choice that differs runs OnChange; what
  /// the picker gives is not limited.
  void SetDateTimeForm(TKVXDateTimeForm form);
  /// Text of the label inside the control, in front of the digits; empty: no label.
  std::string LabelCaption() const { return label_caption_; }
  void SetLabelCaption(const std::string& caption);
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
  std::string label_caption_;
  QLabel* label_;
  QToolButton* button_;
};

class TKVXDateTime : public TKVXCustomDateTimeEdit {
  Q_OBJECT

 public:
  explicit TKVXDateTime(TComponent* owner) : TKVXCustomDateTimeEdit(owner) {}
};
