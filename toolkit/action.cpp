#include "toolkit/action.h"

#include <algorithm>
#include <utility>

#include "toolkit/application.h"
#include "toolkit/control.h"
#include "toolkit/menu.h"
#include "toolkit/text.h"

TAction::TAction(TComponent* owner) : TComponent(owner) {}

TAction::~TAction() {
  SetActionList(nullptr);
  while (!items_.empty()) items_.back()->SetAction(nullptr);
}

template <class T, class Read, class Write>
void TAction::Change(T& value, const T& now, Read read, Write write) {
  if (value == now) return;
  const T former = std::exchange(value, now);
  const auto pass = [&](auto* bound) {
    if (read(*bound) == former) write(*bound);
  };
  std::ranges::for_each(controls_, pass);
  std::ranges::for_each(items_, pass);
}

void TAction::SetCaption(const std::string& caption) {
  Change(
      caption_, caption, [](const auto& bound) { return bound.Caption(); },
      [this](auto& bound) { bound.SetCaption(caption_); });
}

void TAction::SetHint(const std::string& hint) {
  Change(
      hint_, hint, [](const auto& bound) { return bound.Hint(); },
      [this](auto& bound) { bound.SetHint(hint_); });
}

void TAction::SetEnabled(bool enabled) {
  Change(
      enabled_, enabled, [](const auto& bound) { return bound.Enabled(); },
      [this](auto& bound) { bound.SetEnabled(enabled_); });
}

void TAction::SetVisible(bool visible) {
  Change(
      visible_, visible, [](const auto& bound) { return bound.Visible(); },
      [this](auto& bound) { bound.SetVisible(visible_); });
}

void TAction::SetChecked(bool checked) {
  Change(
      checked_, checked, [checked](const auto&) { return !checked; },
      [this](auto& bound) { bound.TakeChecked(checked_); });
}

void TAction::SetImageIndex(int index) {
  Change(
      image_index_, index, [](const auto& bound) { return bound.ImageIndex(); },
      [this](auto& bound) { bound.TakeImage(*this); });
}

void TAction::SetActionList(TCustomActionList* list) {
  if (list_ != nullptr) std::erase(list_->actions_, this);
  list_ = list;
  if (list_ != nullptr) list_->actions_.push_back(this);
}

bool TAction::Execute() {
  if (!enabled_ || !OnExecute) return false;
  FireEvent(OnExecute, this);
  return true;
}

QString TAction::PublishedCaption() const {
  return ToQt(caption_);
}
void TAction::SetPublishedCaption(const QString& caption) {
  SetCaption(FromQt(caption));
}
QString TAction::PublishedHint() const {
  return ToQt(hint_);
}
void TAction::SetPublishedHint(const QString& hint) {
  SetHint(FromQt(hint));
}

void TAction::Bind(TControl* control) {
  controls_.push_back(control);
}
void TAction::Unbind(TControl* control) {
  std::erase(controls_, control);
}
void TAction::Bind(TMenuItem* item) {
  items_.push_back(item);
}
void TAction::Unbind(TMenuItem* item) {
  std::erase(items_, item);
}

TCustomActionList::~TCustomActionList() {
  for (TAction* action : actions_) action->list_ = nullptr;
}

TAction* TCustomActionList::NewAction(const char* name, const std::string& caption, int imageIndex) {
  auto* action = NewComponent<TAction>(Owner(), name);
  action->SetActionList(this);
  action->SetCaption(caption);
  action->SetImageIndex(imageIndex);
  return action;
}
