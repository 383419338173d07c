#include "toolkit/buttons.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "toolkit/action.h"
#include "toolkit/form.h"
#include "toolkit/image_list.h"
#include "toolkit/menu.h"
#include "toolkit/text.h"

namespace {

// A push button of a usual width, but never narrower than its caption: a skin must not give the minimum
// width, since a layout takes that for enough, whatever the font.
class PushButton : public QPushButton {
 public:
  QSize sizeHint() const override { return QPushButton::sizeHint().expandedTo({kMinWidth, 0}); }
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  static constexpr int kMinWidth = 90;
};

}  // namespace

void TbsSkinCustomButton::SetButton(QAbstractButton* button) {
  SetWidget(button);
  QObject::connect(button, &QAbstractButton::clicked, this, [this] { Pressed(); });
}

QAbstractButton* TbsSkinCustomButton::Button() const {
  return static_cast<QAbstractButton*>(Widget());
}

void TbsSkinCustomButton::CaptionChanged() {
  if (Button() != nullptr) Button()->setText(ToQt(Caption()));
}

void TbsSkinCustomButton::FontChanged() {
  TControl::FontChanged();
  if (Button() == nullptr) return;
  const QColor color = UseSkinFontColor() ? QColor() : Font()->ToQColor();
  const QString sheet = color.isValid() ? QLatin1String("color:") + color.name() : QString();
  if (Button()->styleSheet() != sheet) Button()->setStyleSheet(sheet);
}

void TbsSkinCustomButton::SetImage(TImageList* images, int index) {
  imageIndex_ = index;
  if (Button() != nullptr) Button()->setIcon(images == nullptr ? QIcon() : images->Icon(index));
}

void TbsSkinCustomButton::TakeImage(const TAction& action) {
  TImageList* images = action.ActionList() == nullptr ? nullptr : action.ActionList()->Images();
  if (images != nullptr) SetImage(images, action.ImageIndex());
}

TbsSkinButton::TbsSkinButton(TComponent* owner) : TbsSkinCustomButton(owner) {
  auto* button = new PushButton;
  button->setAutoDefault(false);
  SetButton(button);
  SetTabStop(true);
}

void TbsSkinButton::Click() {
  const QPointer<TbsSkinButton> self(this);
  if (!Enabled()) return;
  TbsSkinCustomButton::Click();
  if (self && modalResult_ != 0 && ParentForm() != nullptr) ParentForm()->SetModalResult(modalResult_);
}

void TbsSkinButton::MarkDefault() {
  if (auto* button = qobject_cast<QPushButton*>(Button())) button->setDefault(true);
}

TbsSkinSpeedButton::TbsSkinSpeedButton(TComponent* owner) : TbsSkinCustomButton(owner) {
  auto* button = new QToolButton;
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  SetButton(button);
}

TbsSkinMenuButton::TbsSkinMenuButton(TComponent* owner) : TbsSkinButton(owner) {
  Button()->setProperty("skin", QString::fromLatin1("menu"));
}

TPopupMenu* TbsSkinMenuButton::SkinPopupMenu() const {
  return static_cast<TPopupMenu*>(menu_.data());
}

void TbsSkinMenuButton::SetSkinPopupMenu(TPopupMenu* menu) {
  menu_ = menu;
}

void TbsSkinMenuButton::Click() {
  if (!Enabled()) return;
  if (!menu_) {
    TbsSkinButton::Click();
    return;
  }
  const QPoint at = ClientToScreen(0, Height());
  SkinPopupMenu()->SetPopupComponent(this);
  SkinPopupMenu()->Popup(at.x(), at.y());
}

TbsSkinCheckRadioBox::TbsSkinCheckRadioBox(TComponent* owner, bool radio)
    : TbsSkinCustomButton(owner), radio_(radio) {
  if (radio) {
    SetButton(new QRadioButton);
  } else {
    SetButton(new QCheckBox);
  }
  SetTabStop(true);
}

bool TbsSkinCheckRadioBox::Checked() const {
  return Button() != nullptr && Button()->isChecked();
}

void TbsSkinCheckRadioBox::SetChecked(bool checked) {
  if (Button() == nullptr) return;
  // A radio button of a group can only be unchecked outside its group's rule.
  Button()->setAutoExclusive(radio_ && checked);
  Button()->setChecked(checked);
  Button()->setAutoExclusive(radio_);
}
