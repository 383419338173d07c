#include "toolkit/menu.h"

#include <QMenu>
#include <algorithm>

#include "toolkit/action.h"
#include "toolkit/control.h"
#include "toolkit/event_guard.h"
#include "toolkit/form.h"
#include "toolkit/image_list.h"
#include "toolkit/text.h"

TMenuItem::TMenuItem(TComponent* owner) : TComponent(owner) {}

TMenuItem::~TMenuItem() {
  SetAction(nullptr);
  if (parent_ != nullptr) std::erase(parent_->items_, this);
  for (TMenuItem* item : items_) item->parent_ = nullptr;
}

void TMenuItem::SetAction(TAction* action) {
  if (action_ != nullptr) action_->Unbind(this);
  action_ = action;
  if (action_ == nullptr) return;
  action_->Bind(this);
  caption_ = action_->Caption();
  hint_ = action_->Hint();
  enabled_ = action_->Enabled();
  visible_ = action_->Visible();
  checked_ = action_->Checked();
  imageIndex_ = action_->ImageIndex();
}

void TMenuItem::TakeImage(const TAction& action) {
  imageIndex_ = action.ImageIndex();
}

void TMenuItem::Add(TMenuItem* item) {
  Insert(Count(), item);
}

void TMenuItem::Insert(int index, TMenuItem* item) {
  if (item->parent_ != nullptr) std::erase(item->parent_->items_, item);
  item->parent_ = this;
  items_.insert(items_.begin() + std::clamp(index, 0, Count()), item);
}

void TMenuItem::Delete(int index) {
  Items(index)->parent_ = nullptr;
  items_.erase(items_.begin() + index);
}

void TMenuItem::Clear() {
  while (!items_.empty()) delete items_.back();
}

TMenuItem* TMenuItem::AddAction(TAction* action) {
  auto* item = new TMenuItem(Owner());
  Add(item);
  item->SetAction(action);
  return item;
}

TMenuItem* TMenuItem::AddLine() {
  auto* item = new TMenuItem(Owner());
  item->SetCaption("-");
  Add(item);
  return item;
}

void TMenuItem::Click() {
  if (!enabled_) return;
  if (autoCheck_) checked_ = !checked_;
  if (OnClick) {
    FireEvent(OnClick, this);
  } else if (action_ != nullptr) {
    action_->Execute();
  }
}

QString TMenuItem::PublishedCaption() const {
  return ToQt(caption_);
}
void TMenuItem::SetPublishedCaption(const QString& caption) {
  SetCaption(FromQt(caption));
}
QString TMenuItem::PublishedHint() const {
  return ToQt(hint_);
}
void TMenuItem::SetPublishedHint(const QString& hint) {
  SetHint(FromQt(hint));
}

TMenu::TMenu(TComponent* owner) : TComponent(owner), items_(new TMenuItem(this)) {}

TMenu::~TMenu() = default;

QObject* TMenu::PublishedItems() const {
  return items_;
}

void TMenu::Fill(QMenu* menu, const TMenuItem* item) {
  for (int i = 0; i < item->Count(); ++i) {
    const QPointer<TMenuItem> entry(item->Items(i));
    if (!entry->Visible()) continue;
    if (entry->IsLine()) {
      menu->addSeparator();
      continue;
    }
    QAction* shown = entry->Count() > 0 ? menu->addMenu(ToQt(entry->Caption()))->menuAction()
                                        : menu->addAction(ToQt(entry->Caption()));
    if (entry->Count() > 0) Fill(shown->menu(), entry);
    const TImageList* images = images_;
    if (entry->Action() != nullptr && entry->Action()->ActionList() != nullptr) {
      images = entry->Action()->ActionList()->Images();
    }
    if (images != nullptr) shown->setIcon(images->Icon(entry->ImageIndex()));
    shown->setObjectName(entry->objectName());
    if (entry->Action() != nullptr) shown->setProperty("action", entry->Action()->objectName());
    shown->setEnabled(entry->Enabled());
    shown->setCheckable(entry->Checked() || entry->AutoCheck());
    shown->setChecked(entry->Checked());
    QObject::connect(shown, &QAction::triggered, entry.data(), [entry] { entry->Click(); });
  }
}

TPopupMenu::~TPopupMenu() {
  delete menu_.data();
}

QMenu* TPopupMenu::Widget() const {
  return menu_;
}

void TPopupMenu::Popup(int x, int y) {
  FireEvent(OnPopup, this);
  if (HasEnded(Life())) return;
  delete menu_.data();
  const auto* control = qobject_cast<const TControl*>(popupComponent_ ? popupComponent_.data() : Owner());
  const TForm* form = control == nullptr ? nullptr : control->ParentForm();
  menu_ = new QMenu(form == nullptr ? nullptr : form->Widget());
  menu_->setObjectName(objectName());
  Fill(menu_, Items());
  popupComponent_ = nullptr;
  if (menu_->isEmpty()) return;
  if (const TFont* font = form == nullptr ? nullptr : form->MenuFont()) menu_->setFont(font->ToQFont());
  menu_->popup(QPoint(x, y));
}

void TPopupMenu::Close() {
  if (menu_) menu_->close();
}
