// What the calendar form is made of: a month to pick a day from, and arrow buttons that count in an edit.
// Ranges of days, today's mark and acceleration of the original's controls are not there.
#pragma once

#include "toolkit/conversion.h"
#include "toolkit/win_control.h"

class QCalendarWidget;
class QTableView;
class TCustomEdit;

/// A month on which the user picks a day. OnClick runs when the user picks one, OnDblClick when the user
/// picks it by a double click or by Return, whether the desktop activates entries on a single click or not.
class TMonthCalendar : public TbsSkinControl {
  Q_OBJECT

 public:
  explicit TMonthCalendar(TComponent* owner);

  /// The chosen day; the time of day is 0.
  TDateTime Date() const;
  /// Chooses the day of a date-time and shows its month, without running OnClick. A day that is chosen
  /// already leaves the month that the user looks at.
  void SetDate(TDateTime date);

 protected:
  bool ClicksByMouse() const override { return false; }
  QWidget* FocusWidget() const override;
  bool WidgetEvent(QWidget* widget, QEvent* event) override;
  bool ReturnPressed() override;

 private:
  QCalendarWidget* Calendar() const;
  QTableView* Days() const;

  bool setting_ = false;
};

/// Two arrow buttons that count the number in an edit up and down; they stop at the bounds. In the edit the
/// keys up and down do the same where the form leaves them.
class TUpDown : public TbsSkinControl {
  Q_OBJECT

 public:
  explicit TUpDown(TComponent* owner);

  /// The edit that shows the number; not owned, and its OnKeyDown is the control's. The position is read from
  /// it at each press.
  void SetAssociate(TCustomEdit* edit);
  /// Lower bound, included; 0 at the start.
  int Min() const { return min_; }
  /// Upper bound, included; 100 at the start.
  int Max() const { return max_; }
  /// Sets both bounds.
  void SetRange(int min, int max);
  /// The number in the edit, or the last one set when it holds none; within the bounds.
  int Position() const;
  /// Sets the number, brought within the bounds, and writes it to the edit.
  void SetPosition(int position);

 protected:
  QWidget* FocusWidget() const override { return nullptr; }
  bool ClicksByMouse() const override { return false; }

 private:
  TCustomEdit* Edit() const;
  void Step(int by);

  QPointer<QObject> edit_;
  int min_ = 0;
  int max_ = 100;
  int position_ = 0;
};
