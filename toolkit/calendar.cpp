#include "toolkit/calendar.h"

#include <QCalendarWidget>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "toolkit/application.h"
#include "toolkit/edits.h"

TMonthCalendar::TMonthCalendar(TComponent* owner) : TbsSkinControl(owner) {
  auto* calendar = new QCalendarWidget;
  SetWidget(calendar);
  SetTabStop(true);
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar->setGridVisible(true);
  // The weeks share the room that there is; under a skin their least height is more than that.
  calendar->findChild<QTableView*>()->verticalHeader()->setMinimumSectionSize(1);
  calendar->setDateRange(QDate(1, 1, 1), QDate(9999, 12, 31));
  connect(calendar, &QCalendarWidget::selectionChanged, this, [this] {
    if (!setting_) Click();
  });
  connect(calendar, &QCalendarWidget::activated, this, [this] { FireEvent(OnDblClick, this); });
}

QCalendarWidget* TMonthCalendar::Calendar() const {
  return static_cast<QCalendarWidget*>(Widget());
}

TDateTime TMonthCalendar::Date() const {
  const QDate date = Calendar() == nullptr ? QDate::currentDate() : Calendar()->selectedDate();
  return EncodeDate(date.year(), date.month(), date.day());
}

void TMonthCalendar::SetDate(TDateTime date) {
  if (Calendar() == nullptr) return;
  int year = 0;
  int month = 0;
  int day = 0;
  DecodeDate(date, year, month, day);
  const QScopedValueRollback setting(setting_, true);
  Calendar()->setSelectedDate(QDate(year, month, day));
  Calendar()->setCurrentPage(year, month);
}

TUpDown::TUpDown(TComponent* owner) : TbsSkinControl(owner) {
  auto* arrows = new QWidget;
  auto* column = new QVBoxLayout(arrows);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  const auto add = [&](Qt::ArrowType arrow, int by) {
    auto* button = new QToolButton;
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    column->addWidget(button);
    connect(button, &QToolButton::clicked, this, [this, by] { Step(by); });
  };
  add(Qt::UpArrow, 1);
  add(Qt::DownArrow, -1);
  SetWidget(arrows);
}

TCustomEdit* TUpDown::Edit() const {
  return static_cast<TCustomEdit*>(edit_.data());
}

void TUpDown::SetAssociate(TCustomEdit* edit) {
  edit_ = edit;
}

void TUpDown::SetRange(int min, int max) {
  min_ = min;
  max_ = std::max(min, max);
}

int TUpDown::Position() const {
  const int position = Edit() == nullptr ? position_ : StrToIntDef(Edit()->Text(), position_);
  return std::clamp(position, min_, max_);
}

void TUpDown::SetPosition(int position) {
  position_ = std::clamp(position, min_, max_);
  if (Edit() != nullptr) Edit()->SetText(IntToStr(position_));
}

void TUpDown::Step(int by) {
  SetPosition(Position() + by);
  Click();
}
