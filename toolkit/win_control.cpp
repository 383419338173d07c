#include "toolkit/win_control.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLayout>
#include <algorithm>
#include <limits>

#include "toolkit/event_guard.h"
#include "toolkit/events.h"
#include "toolkit/form.h"
#include "toolkit/text.h"

TWinControl::~TWinControl() {
  for (TControl* control : controls_) control->parent_ = nullptr;
}

bool TWinControl::CanFocus() const {
  const QWidget* widget = FocusWidget();
  if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) return false;
  QWidget* window = widget->window();
  return widget->isVisibleTo(window) && widget->isEnabledTo(window);
}

void TWinControl::SetFocus() {
  TForm* form = ParentForm();
  if (form == nullptr || !CanFocus()) return;
  form->FocusMoved(this);
  FocusWidget()->setFocus(Qt::OtherFocusReason);
}

bool TWinControl::Focused() const {
  return FocusWidget() != nullptr && FocusWidget()->hasFocus();
}

void TWinControl::TabOrderList(std::vector<TWinControl*>& list) const {
  std::vector<TWinControl*> inside;
  for (TControl* control : controls_) {
    if (auto* windowed = qobject_cast<TWinControl*>(control)) inside.push_back(windowed);
  }
  const auto place = [](const TWinControl* control) {
    return control->tabOrder_ < 0 ? std::numeric_limits<int>::max() : control->tabOrder_;
  };
  std::ranges::stable_sort(inside, {}, place);
  for (TWinControl* control : inside) {
    list.push_back(control);
    control->TabOrderList(list);
  }
}

bool TWinControl::SelectNext(TWinControl* current, bool forward, bool tabStopsOnly) {
  std::vector<TWinControl*> list;
  TabOrderList(list);
  if (!forward) std::ranges::reverse(list);
  const auto here = std::ranges::find(list, current);
  if (here != list.end()) std::rotate(list.begin(), here + 1, list.end());
  for (TWinControl* control : list) {
    if (control == current || !control->CanFocus()) continue;
    if (tabStopsOnly ? !control->tabStop_ : control->Parent() != this) continue;
    control->SetFocus();
    return true;
  }
  return false;
}

void TWinControl::SetImeMode(int mode) {
  imeMode_ = mode;
  if (QWidget* widget = FocusWidget()) widget->setAttribute(Qt::WA_InputMethodEnabled, mode != imDisable);
}

QString TWinControl::PublishedImeName() const {
  return ToQt(imeName_);
}
void TWinControl::SetPublishedImeName(const QString& name) {
  imeName_ = FromQt(name);
}

bool TWinControl::WidgetEvent(QWidget* widget, QEvent* event) {
  switch (event->type()) {
    case QEvent::Resize:
      if (widget == ClientWidget()) AlignControls();
      break;
    case QEvent::KeyPress:
      if (HoldsFocusOn(widget)) return KeyEvent(static_cast<QKeyEvent*>(event));
      break;
    case QEvent::FocusIn:
      if (HoldsFocusOn(widget)) {
        if (TForm* form = ParentForm()) form->FocusMoved(this);
        FireEvent(OnEnter, this);
      }
      break;
    case QEvent::FocusOut: {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      const bool stays = reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
      if (HoldsFocusOn(widget) && !stays) FireEvent(OnExit, this);
      break;
    }
    default:
      break;
  }
  return TControl::WidgetEvent(widget, event);
}

bool TWinControl::KeyEvent(QKeyEvent* event) {
  const QPointer<TWinControl> self(this);
  TForm* form = ParentForm();
  std::uint16_t key = ToVirtualKey(event->key());
  const TShiftState shift = ToShiftState(event->modifiers(), Qt::NoButton);
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier && PopupMenu() != nullptr) {
    OpenPopupMenu();
    return true;
  }
  if (form != nullptr && form->PressDialogButton(key, shift, WantsReturn())) return true;
  if (key != 0 && form != nullptr && form->KeyPreview()) {
    FireEvent(form->OnKeyDown, form, key, shift);
    if (!self || key == 0) return true;
  }
  if (key != 0) {
    FireEvent(OnKeyDown, this, key, shift);
    if (!self || key == 0) return true;
  }
  const std::string typed = FromQt(event->text());
  if (typed.size() == 1) {
    char character = typed[0];
    FireEvent(OnKeyPress, this, character);
    if (!self || character == 0) return true;
  }
  return (key == VK_RETURN && ReturnPressed()) || !self;
}

void TWinControl::OpenPopupMenu() {
  QWidget* widget = FocusWidget();
  const QPoint at = widget->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, at, widget->mapToGlobal(at));
  QCoreApplication::sendEvent(widget, &event);
}

void TWinControl::AlignControls() {
  const QWidget* client = ClientWidget();
  if (client == nullptr || client->layout() != nullptr) return;
  QRect room = client->rect();
  const auto place = [&](TAlign align) {
    for (TControl* control : controls_) {
      QWidget* widget = control->Widget();
      if (control->align_ != align || !control->visible_ || widget == nullptr) continue;
      const int width = std::min(widget->width(), room.width());
      const int height = std::min(widget->height(), room.height());
      QRect at = room;
      if (align == alTop) at.setHeight(height), room.setTop(at.bottom() + 1);
      if (align == alBottom) at.setTop(room.bottom() - height + 1), room.setBottom(at.top() - 1);
      if (align == alLeft) at.setWidth(width), room.setLeft(at.right() + 1);
      if (align == alRight) at.setLeft(room.right() - width + 1), room.setRight(at.left() - 1);
      widget->setGeometry(at);
    }
  };
  for (const TAlign align : {alTop, alBottom, alLeft, alRight, alClient}) place(align);
}

void TbsSkinControl::SetUseSkinFontColor(bool use) {
  useSkinFontColor_ = use;
  FontChanged();
}
