#include "toolkit/action.h"

#include <algorithm>
#include <utility>

#include "toolkit/action_client.h"
#include "toolkit/event_guard.h"
#include "toolkit/text.h"

TAction::TAction(TComponent* owner) : TComponent(owner) {}

TAction::~TAction() {
  SetActionList(nullptr);
  while (!clients_.empty()) clients_.back()->SetAction(nullptr);
}

template <class T, class Read, class Write>
void TAction::Change(T& value, const T& now, Read read, Write write) {
  if (value == now) return;
  const T former = std::exchange(value, now);
  for (TActionClient* client : clients_) {
    if (read(*client) == former) write(*client);
  }
}

void TAction::SetCaption(const std::string& caption) {
  Change(
      caption_, caption, [](const TActionClient& client) { return client.Caption(); },
      [this](TActionClient& client) { client.SetCaption(caption_); });
}

void TAction::SetHint(const std::string& hint) {
  Change(
      hint_, hint, [](const TActionClient& client) { return client.Hint(); },
      [this](TActionClient& client) { client.SetHint(hint_); });
}

void TAction::SetEnabled(bool enabled) {
  Change(
      enabled_, enabled, [](const TActionClient& client) { return client.Enabled(); },
      [this](TActionClient& client) { client.SetEnabled(enabled_); });
}

void TAction::SetVisible(bool visible) {
  Change(
      visible_, visible, [](const TActionClient& client) { return client.Visible(); },
      [this](TActionClient& client) { client.SetVisible(visible_); });
}

void TAction::SetChecked(bool checked) {
  Change(
      checked_, checked, [checked](const TActionClient&) { return !checked; },
      [this](TActionClient& client) { client.TakeChecked(checked_); });
}

void TAction::SetImageIndex(int index) {
  Change(
      imageIndex_, index, [](const TActionClient& client) { return client.ImageIndex(); },
      [this](TActionClient& client) { client.TakeImage(*this); });
}

void TAction::SetActionList(TCustomActionList* list) {
  if (list_ != nullptr) list_->Remove(this);
  list_ = list;
  if (list_ != nullptr) list_->Add(this);
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

void TAction::Bind(TActionClient* client) {
  clients_.push_back(client);
}

void TAction::Unbind(TActionClient* client) {
  std::erase(clients_, client);
}

TCustomActionList::~TCustomActionList() {
  while (!actions_.empty()) actions_.back()->SetActionList(nullptr);
}

TAction* TCustomActionList::NewAction(const char* name, const std::string& caption, int imageIndex) {
  auto* action = NewComponent<TAction>(Owner(), name);
  action->SetActionList(this);
  action->SetCaption(caption);
  action->SetImageIndex(imageIndex);
  return action;
}
