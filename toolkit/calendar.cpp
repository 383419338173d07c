#include "toolkit/calendar.h"

#include <QCalendarWidget>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "toolkit/edits.h"
#include "toolkit/event_guard.h"

TMonthCalendar::TMonthCalendar(TComponent* owner) : TbsSkinControl(owner) {
  auto* calendar = new QCalendarWidget;
  SetWidget(calendar);
  SetTabStop(true);
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar->setGridVisible(true);
  // Days and weeks share the room that there is; under a skin their minimum size is more than that.
  for (QHeaderView* header : {Days()->horizontalHeader(), Days()->verticalHeader()})
    header->setMinimumSectionSize(1);
  calendar->setDateRange(QDate(1, 1, 1), QDate(9999, 12, 31));
  WatchWidget(Days());
  WatchWidget(Days()->viewport());
  connect(calendar, &QCalendarWidget::selectionChanged, this, [this] {
    if (!setting_) Click();
  });
}

QCalendarWidget* TMonthCalendar::Calendar() const {
  return static_cast<QCalendarWidget*>(Widget());
}

QTableView* TMonthCalendar::Days() const {
  return Calendar() == nullptr ? nullptr : Calendar()->findChild<QTableView*>();
}

// The days take the keys, and the calendar around them only what they leave.
QWidget* TMonthCalendar::FocusWidget() const {
  return Days();
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
  const QDate chosen(year, month, day);
  if (chosen == Calendar()->selectedDate()) return;
  const QScopedValueRollback setting(setting_, true);
  Calendar()->setSelectedDate(chosen);
  Calendar()->setCurrentPage(year, month);
}

// The first click of two may turn the month; the second is then on a day that was not chosen.
bool TMonthCalendar::WidgetEvent(QWidget* widget, QEvent* event) {
  if (widget != Days()->viewport()) return TbsSkinControl::WidgetEvent(widget, event);
  if (event->type() != QEvent::MouseButtonDblClick) return false;
  const auto* click = static_cast<QMouseEvent*>(event);
  const QModelIndex day = Days()->indexAt(click->position().toPoint());
  if (click->button() != Qt::LeftButton || !Days()->selectionModel()->isSelected(day)) return false;
  FireEvent(OnDblClick, this);
  return true;
}

bool TMonthCalendar::ReturnPressed() {
  FireEvent(OnDblClick, this);
  return true;
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
  const QPointer<TUpDown> self(this);
  edit->OnKeyDown = [self](TObject*, std::uint16_t& key, TShiftState) {
    if (!self || (key != VK_UP && key != VK_DOWN)) return;
    self->Step(key == VK_UP ? 1 : -1);
    key = 0;
  };
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
