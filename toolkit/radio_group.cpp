#include "toolkit/radio_group.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "toolkit/event_guard.h"
#include "toolkit/text.h"

TbsSkinRadioGroup::TbsSkinRadioGroup(TComponent* owner) : TbsSkinControl(owner) {
  auto* box = new QGroupBox;
  SetWidget(box);
  SetTabStop(true);
  grid_ = new QGridLayout(box);
  group_ = new QButtonGroup(box);
  items_.OnChange = [this] { ItemsChanged(); };
  connect(group_, &QButtonGroup::idToggled, this, [this](int index, bool on) {
    if (setting_ || !on) return;
    itemIndex_ = index;
    Click();
  });
  // The item that is shown already toggles nothing when it is clicked.
  connect(group_, &QButtonGroup::idPressed, this, [this](int index) { pressedShown_ = index == itemIndex_; });
  connect(group_, &QButtonGroup::idClicked, this, [this] {
    if (std::exchange(pressedShown_, false)) Click();
  });
}

void TbsSkinRadioGroup::SetName(const std::string& name) {
  TbsSkinControl::SetName(name);
  NameButtons();
}

void TbsSkinRadioGroup::SetColumns(int columns) {
  columns_ = std::max(columns, 1);
  PlaceButtons();
}

void TbsSkinRadioGroup::SetItemIndex(int index) {
  const bool exists = index >= 0 && static_cast<std::size_t>(index) < items_.Count();
  itemIndex_ = exists ? index : -1;
  ShowChoice();
  if (exists) FireEvent(OnClick, this);
}

void TbsSkinRadioGroup::CaptionChanged() {
  if (Widget() != nullptr) static_cast<QGroupBox*>(Widget())->setTitle(ToQt(Caption()));
}

void TbsSkinRadioGroup::FontChanged() {
  TbsSkinControl::FontChanged();
  if (Widget() == nullptr) return;
  for (QRadioButton* button : buttons_) button->setFont(Font()->ToQFont());
}

QWidget* TbsSkinRadioGroup::FocusWidget() const {
  if (Widget() == nullptr || buttons_.empty()) return nullptr;
  return buttons_[static_cast<std::size_t>(std::max(itemIndex_, 0))];
}

// A button that the mouse presses has the focus before it is the chosen one.
bool TbsSkinRadioGroup::HoldsFocusOn(const QWidget* widget) const {
  return Widget() != nullptr && std::ranges::find(buttons_, widget) != buttons_.end();
}

void TbsSkinRadioGroup::ItemsChanged() {
  if (Widget() == nullptr) return;
  const QScopedValueRollback setting(setting_, true);
  while (buttons_.size() > items_.Count()) {
    delete buttons_.back();
    buttons_.pop_back();
  }
  while (buttons_.size() < items_.Count()) {
    auto* button = new QRadioButton(Widget());
    // Under a style sheet a widget that comes later doesn't take its parent's font.
    button->setFont(Widget()->font());
    group_->addButton(button, static_cast<int>(buttons_.size()));
    buttons_.push_back(button);
    WatchWidget(button);
  }
  for (std::size_t i = 0; i < buttons_.size(); ++i) buttons_[i]->setText(ToQt(items_[i]));
  if (itemIndex_ >= static_cast<int>(buttons_.size())) itemIndex_ = -1;
  NameButtons();
  PlaceButtons();
  ShowChoice();
}

void TbsSkinRadioGroup::PlaceButtons() {
  if (Widget() == nullptr) return;
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const int at = static_cast<int>(i);
    grid_->addWidget(buttons_[i], at / columns_, at % columns_);
  }
}

void TbsSkinRadioGroup::ShowChoice() {
  if (Widget() == nullptr) return;
  const QScopedValueRollback setting(setting_, true);
  group_->setExclusive(false);
  for (std::size_t i = 0; i < buttons_.size(); ++i)
    buttons_[i]->setChecked(static_cast<int>(i) == itemIndex_);
  group_->setExclusive(true);
}

void TbsSkinRadioGroup::NameButtons() {
  if (Widget() == nullptr) return;
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    buttons_[i]->setObjectName(objectName() + QLatin1Char('_') + QString::number(i));
  }
}
