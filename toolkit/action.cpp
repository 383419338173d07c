#include "toolkit/action.h"

#include <algorithm>

#include "toolkit/application.h"
#include "toolkit/control.h"
#include "toolkit/menu.h"
#include "toolkit/text.h"

TAction::TAction(TComponent* owner) : TComponent(owner) {}

TAction::~TAction() {
  SetActionList(nullptr);
  while (!items_.empty()) items_.back()->SetAction(nullptr);
}

void TAction::SetCaption(const std::string& caption) {
  caption_ = caption;
  Changed();
}

void TAction::SetHint(const std::string& hint) {
  hint_ = hint;
  Changed();
}

void TAction::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Changed();
}

void TAction::SetVisible(bool visible) {
  visible_ = visible;
  Changed();
}

void TAction::SetChecked(bool checked) {
  checked_ = checked;
  Changed();
}

void TAction::SetImageIndex(int index) {
  image_index_ = index;
  Changed();
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

void TAction::Changed() {
  for (TControl* control : controls_) control->ActionChange(*this);
  for (TMenuItem* item : items_) item->ActionChange(*this);
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

TAction* TCustomActionList::NewAction(const char* name, const std::string& caption, int image_index) {
  auto* action = NewComponent<TAction>(Owner(), name);
  action->SetActionList(this);
  action->SetCaption(caption);
  action->SetImageIndex(image_index);
  return action;
}
