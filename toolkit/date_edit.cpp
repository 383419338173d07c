#include "toolkit/date_edit.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "toolkit/event_guard.h"
#include "toolkit/stock_images.h"
#include "toolkit/text.h"

static constexpr int kButtonRoom = 2;
static constexpr int kPictureSize = 16;

// Digits of each kind of value.
static int Digits(TKVXDateType type) {
  switch (type) {
    case dtDate:
      return 8;
    case dtTime:
      return 6;
    case dtDateTime:
      return 14;
  }
  return 0;
}

TKVXCustomDateTimeEdit::TKVXCustomDateTimeEdit(TComponent* owner) : TCustomEdit(owner) {
  label_ = new QLabel(Edit());
  label_->setTextFormat(Qt::PlainText);
  label_->hide();
  button_ = new QToolButton(Edit());
  button_->setIcon(StockIcon(siCalendar));
  button_->setIconSize(QSize(kPictureSize, kPictureSize));
  button_->setAutoRaise(true);
  button_->setFocusPolicy(Qt::NoFocus);
  button_->setCursor(Qt::ArrowCursor);
  button_->setEnabled(false);
  connect(button_, &QToolButton::clicked, this, [this] { PickDate(); });
  Limits().allows = [](std::string_view character) { return character[0] >= '0' && character[0] <= '9'; };
  SetDateType(dtDate);
  PlaceParts();
}

void TKVXCustomDateTimeEdit::SetName(const std::string& name) {
  TCustomEdit::SetName(name);
  if (Edit() != nullptr) button_->setObjectName(objectName() + QLatin1String("_button"));
}

void TKVXCustomDateTimeEdit::SetDateType(TKVXDateType type) {
  type_ = type;
  SetMaxLength(Digits(type));
}

void TKVXCustomDateTimeEdit::SetDateTimeForm(TKVXDateTimeForm form) {
  form_ = std::move(form);
  if (Edit() != nullptr) button_->setEnabled(form_ != nullptr);
}

void TKVXCustomDateTimeEdit::SetLabelCaption(const std::string& caption) {
  labelCaption_ = caption;
  if (Edit() == nullptr) return;
  label_->setText(ToQt(caption));
  label_->setVisible(!caption.empty());
  PlaceParts();
}

void TKVXCustomDateTimeEdit::PickDate() {
  if (!Enabled() || ReadOnly() || !form_) return;
  RunGuarded(this, [this] {
    const QPointer<TKVXCustomDateTimeEdit> self(this);
    const TKVXDateTimeForm form = form_;
    const std::string before = Text();
    const std::string chosen = form(before, type_);
    if (!self || chosen == before) return;
    SetText(chosen);
    UserChanged();
  });
}

void TKVXCustomDateTimeEdit::FontChanged() {
  TCustomEdit::FontChanged();
  if (Edit() != nullptr) PlaceParts();
}

bool TKVXCustomDateTimeEdit::WidgetEvent(QWidget* widget, QEvent* event) {
  if (widget == Widget() && event->type() == QEvent::Resize) PlaceParts();
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Down && key->modifiers() == Qt::AltModifier) {
      PickDate();
      return true;
    }
  }
  return TCustomEdit::WidgetEvent(widget, event);
}

void TKVXCustomDateTimeEdit::PlaceParts() {
  const QRect room = Edit()->rect().adjusted(kButtonRoom, kButtonRoom, -kButtonRoom, -kButtonRoom);
  const int labelWidth = labelCaption_.empty() ? 0 : label_->sizeHint().width() + kButtonRoom;
  const int buttonWidth = button_->sizeHint().width();
  label_->setGeometry(room.left() + kButtonRoom, room.top(), labelWidth, room.height());
  button_->setGeometry(room.right() - buttonWidth + 1, room.top(), buttonWidth, room.height());
  Edit()->setTextMargins(labelWidth, 0, buttonWidth, 0);
}
