#include "toolkit/control.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <algorithm>

#include "toolkit/action.h"
#include "toolkit/event_guard.h"
#include "toolkit/events.h"
#include "toolkit/form.h"
#include "toolkit/menu.h"
#include "toolkit/text.h"
#include "toolkit/win_control.h"

TControl::TControl(TComponent* owner) : TComponent(owner), font_(new TFont(this)) {
  font_->OnChange = [this] { FontChanged(); };
}

TControl::~TControl() {
  font_->OnChange = nullptr;
  if (action_ != nullptr) action_->Unbind(this);
  if (parent_ != nullptr) std::erase(parent_->controls_, this);
  for (const QPointer<QWidget>& widget : watched_) {
    if (widget) widget->removeEventFilter(this);
  }
  delete widget_.data();
}

void TControl::SetName(const std::string& name) {
  TComponent::SetName(name);
  if (widget_) widget_->setObjectName(objectName());
}

void TControl::SetWidget(QWidget* widget) {
  widget_ = widget;
  WatchWidget(widget);
}

void TControl::WatchWidget(QWidget* widget) {
  watched_.emplace_back(widget);
  widget->installEventFilter(this);
}

void TControl::SetParent(TWinControl* parent) {
  if (parent == parent_) return;
  if (parent_ != nullptr) std::erase(parent_->controls_, this);
  parent_ = parent;
  if (parent_ != nullptr) parent_->controls_.push_back(this);
  if (!widget_) return;
  widget_->setParent(parent_ == nullptr ? nullptr : parent_->ClientWidget());
  if (parent_ == nullptr) return;
  // A needless show would make the widget's layout measure itself before it is filled.
  if (!visible_ || widget_->isHidden() || parent_->ClientWidget()->isVisible()) widget_->setVisible(visible_);
  parent_->AlignControls();
}

TForm* TControl::ParentForm() const {
  const TControl* control = this;
  while (control->parent_ != nullptr) control = control->parent_;
  return qobject_cast<TForm*>(const_cast<TControl*>(control));
}

void TControl::SetVisible(bool visible) {
  visible_ = visible;
  if (widget_ && widget_->parentWidget() != nullptr && !widget_->isWindow()) widget_->setVisible(visible);
  if (parent_ != nullptr) parent_->AlignControls();
}

void TControl::SetEnabled(bool enabled) {
  enabled_ = enabled;
  if (widget_) widget_->setEnabled(enabled);
}

void TControl::SetHint(const std::string& hint) {
  hint_ = hint;
  if (widget_) widget_->setToolTip(showHint_ ? ToToolTip(hint_) : QString());
}

void TControl::SetShowHint(bool show) {
  showHint_ = show;
  SetHint(hint_);
}

void TControl::SetCaption(const std::string& caption) {
  caption_ = caption;
  CaptionChanged();
}

int TControl::Left() const {
  return widget_ ? widget_->x() : 0;
}
int TControl::Top() const {
  return widget_ ? widget_->y() : 0;
}
int TControl::Width() const {
  return widget_ ? widget_->width() : 0;
}
int TControl::Height() const {
  return widget_ ? widget_->height() : 0;
}

void TControl::SetLeft(int left) {
  if (widget_) widget_->move(left, Top());
}

void TControl::SetTop(int top) {
  if (widget_) widget_->move(Left(), top);
}

void TControl::SetWidth(int width) {
  if (!widget_) return;
  if (align_ == alNone) {
    widget_->setFixedWidth(width);
  } else {
    widget_->resize(width, Height());
  }
}

void TControl::SetHeight(int height) {
  if (!widget_) return;
  if (align_ == alNone) {
    widget_->setFixedHeight(height);
  } else {
    widget_->resize(Width(), height);
  }
}

void TControl::SetBounds(int left, int top, int width, int height) {
  SetLeft(left);
  SetTop(top);
  SetWidth(width);
  SetHeight(height);
}

void TControl::SetAlign(TAlign align) {
  align_ = align;
  if (widget_ && align != alNone) {
    widget_->setMinimumSize(0, 0);
    widget_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  }
  if (parent_ != nullptr) parent_->AlignControls();
}

QPoint TControl::ClientToScreen(int x, int y) const {
  return widget_ ? widget_->mapToGlobal(QPoint(x, y)) : QPoint(x, y);
}

void TControl::SetAction(TAction* action) {
  if (action_ != nullptr) action_->Unbind(this);
  action_ = action;
  if (action == nullptr) return;
  action->Bind(this);
  if (widget_) widget_->setProperty("action", action->objectName());
  if (Caption() != action->Caption()) SetCaption(action->Caption());
  if (hint_ != action->Hint()) SetHint(action->Hint());
  SetEnabled(action->Enabled());
  SetVisible(action->Visible());
  TakeChecked(action->Checked());
  if (action->ImageIndex() >= 0) TakeImage(*action);
}

TPopupMenu* TControl::PopupMenu() const {
  return static_cast<TPopupMenu*>(popupMenu_.data());
}

void TControl::SetPopupMenu(TPopupMenu* menu) {
  popupMenu_ = menu;
}

void TControl::Click() {
  if (!Enabled()) return;
  if (OnClick) {
    FireEvent(OnClick, this);
  } else if (action_ != nullptr) {
    action_->Execute();
  }
}

QString TControl::PublishedHint() const {
  return ToQt(hint_);
}
void TControl::SetPublishedHint(const QString& hint) {
  SetHint(FromQt(hint));
}
QString TControl::PublishedCaption() const {
  return ToQt(Caption());
}
void TControl::SetPublishedCaption(const QString& caption) {
  SetCaption(FromQt(caption));
}

void TControl::SetPublishedFont(QObject* font) {
  if (const auto* other = qobject_cast<TFont*>(font)) font_->Assign(*other);
}

void TControl::FontChanged() {
  if (widget_) widget_->setFont(font_->ToQFont());
}

bool TControl::eventFilter(QObject* watched, QEvent* event) {
  TLife* const life = LifeOf(this);
  if (HasEnded(life)) return false;
  const TLifeScope scope(life);
  const QPointer<QObject> kept(watched);
  // Qt goes on to the widget itself, which a handler may have deleted.
  return WidgetEvent(static_cast<QWidget*>(watched), event) || !kept || HasEnded(life);
}

bool TControl::WidgetEvent(QWidget* widget, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return MouseEvent(widget, static_cast<QMouseEvent*>(event));
    case QEvent::ContextMenu: {
      if (!popupMenu_) return false;
      const QPoint at = static_cast<QContextMenuEvent*>(event)->globalPos();
      PopupMenu()->SetPopupComponent(this);
      PopupMenu()->Popup(at.x(), at.y());
      return true;
    }
    default:
      return false;
  }
}

bool TControl::MouseEvent(QWidget* widget, QMouseEvent* event) {
  if (!enabled_) return false;
  const QPoint at = widget->mapTo(widget_.data(), event->position().toPoint());
  const TMouseButton button = ToMouseButton(event->button());
  const TShiftState shift = ToShiftState(event->modifiers(), event->buttons());
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      pressed_ = button == mbLeft;
      FireEvent(OnMouseDown, this, button, shift, at.x(), at.y());
      break;
    case QEvent::MouseButtonDblClick:
      pressed_ = false;
      if (button == mbLeft) FireEvent(OnDblClick, this);
      FireEvent(OnMouseDown, this, button, shift.With(ssDouble), at.x(), at.y());
      break;
    default: {
      const QPointer<TControl> self(this);
      const bool click = pressed_ && button == mbLeft && ClicksByMouse() && widget_->rect().contains(at);
      pressed_ = false;
      if (click) Click();
      if (self) FireEvent(OnMouseUp, this, button, shift, at.x(), at.y());
      return !self || EndsMouseEvents();
    }
  }
  return EndsMouseEvents();
}
