#include "toolkit/panels.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "toolkit/event_guard.h"
#include "toolkit/text.h"

namespace {

// Marks a widget for the skin's selectors.
void SetSkinRole(QWidget* widget, const char* role) {
  widget->setProperty("skin", QString::fromLatin1(role));
}

// A column without space around or between its parts.
QVBoxLayout* BareColumn(QWidget* widget) {
  auto* column = new QVBoxLayout(widget);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  return column;
}

// As large as what it holds where there is room, and as small as its scroll bars where there is none. What
// gets the focus comes into sight.
class ScrollArea : public QScrollArea {
 public:
  explicit ScrollArea(QWidget* client) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(client);
    QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
      if (now != nullptr && widget() != nullptr && widget()->isAncestorOf(now)) ensureWidgetVisible(now);
    });
  }
  void KeepWidth(bool keeps) {
    keepsWidth_ = keeps;
    updateGeometry();
  }
  QSize minimumSizeHint() const override {
    const QSize minimum = QScrollArea::minimumSizeHint();
    if (!keepsWidth_ || widget() == nullptr) return minimum;
    const int content = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {std::min(content, screen()->availableSize().width() - kBesideIt), minimum.height()};
  }
  QSize sizeHint() const override { return widget() == nullptr ? QSize() : widget()->sizeHint(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
  }

 private:
  static constexpr int kBesideIt = 40;  // of the screen, for the form's margins and frame
  bool keepsWidth_ = false;
};

}  // namespace

TPanel::TPanel(TComponent* owner) : TWinControl(owner) {
  SetWidget(new QFrame);
}

TbsSkinPanel::TbsSkinPanel(TComponent* owner)
    : TbsSkinControl(owner), heading_(new QLabel), client_(new QWidget) {
  auto* frame = new QFrame;
  QVBoxLayout* column = BareColumn(frame);
  column->addWidget(heading_);
  column->addWidget(client_, 1);
  heading_->setTextFormat(Qt::PlainText);
  heading_->hide();
  SetSkinRole(frame, "panel");
  SetSkinRole(heading_, "heading");
  SetWidget(frame);
  client_->installEventFilter(this);
}

void TbsSkinPanel::SetBordered(bool bordered) {
  auto* frame = static_cast<QFrame*>(Widget());
  if (frame == nullptr) return;
  frame->setFrameShape(bordered ? QFrame::StyledPanel : QFrame::NoFrame);
  SetSkinRole(frame, bordered ? "bordered" : "panel");
}

void TbsSkinPanel::CaptionChanged() {
  if (!client_) return;
  heading_->setText(ToQt(Caption()));
  heading_->setVisible(!Caption().empty());
}

void TbsSkinPanel::FontChanged() {
  TControl::FontChanged();
  if (client_) heading_->setFont(Font()->ToQFont());
}

TbsSkinGroupBox::TbsSkinGroupBox(TComponent* owner) : TbsSkinControl(owner) {
  SetWidget(new QGroupBox);
}

void TbsSkinGroupBox::CaptionChanged() {
  if (Widget() != nullptr) static_cast<QGroupBox*>(Widget())->setTitle(ToQt(Caption()));
}

TbsSkinExPanel::TbsSkinExPanel(TComponent* owner)
    : TbsSkinControl(owner), header_(new QToolButton), client_(new QFrame) {
  auto* frame = new QFrame;
  QVBoxLayout* column = BareColumn(frame);
  column->addWidget(header_);
  column->addWidget(client_, 1);
  header_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  header_->setAutoRaise(true);
  header_->setFocusPolicy(Qt::TabFocus);
  header_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  SetSkinRole(frame, "roll");
  SetSkinRole(header_, "roll-header");
  SetSkinRole(client_, "roll-client");
  SetWidget(frame);
  SetTabStop(true);
  client_->installEventFilter(this);
  WatchWidget(header_);
  ShowState();
  QObject::connect(header_, &QToolButton::clicked, this, [this] {
    SetRollState(!rolledUp_);
    FireEvent(OnChangeRollState, this);
  });
}

void TbsSkinExPanel::ShowState() {
  header_->setArrowType(rolledUp_ ? Qt::RightArrow : Qt::DownArrow);
  client_->setVisible(!rolledUp_);
  if (openHeight_ > 0) TbsSkinControl::SetHeight(rolledUp_ ? header_->sizeHint().height() : openHeight_);
}

void TbsSkinExPanel::SetHeight(int height) {
  openHeight_ = height;
  if (client_) ShowState();
}

QWidget* TbsSkinExPanel::FocusWidget() const {
  return client_ ? header_ : nullptr;
}

bool TbsSkinExPanel::ReturnPressed() {
  header_->click();
  return true;
}

void TbsSkinExPanel::SetRollState(bool rolledUp) {
  rolledUp_ = rolledUp;
  if (client_) ShowState();
}

void TbsSkinExPanel::CaptionChanged() {
  if (client_) header_->setText(ToQt(Caption()));
}

void TbsSkinExPanel::FontChanged() {
  TControl::FontChanged();
  if (!client_) return;
  QFont font = Font()->ToQFont();
  font.setBold(true);
  header_->setFont(font);
}

TbsSkinScrollBox::TbsSkinScrollBox(TComponent* owner) : TbsSkinControl(owner), client_(new QWidget) {
  auto* area = new ScrollArea(client_);
  SetSkinRole(area, "scroll");
  SetSkinRole(client_, "scroll-client");
  SetWidget(area);
  client_->installEventFilter(this);
}

void TbsSkinScrollBox::SetKeepsWidth(bool keeps) {
  if (Widget() != nullptr) static_cast<ScrollArea*>(Widget())->KeepWidth(keeps);
}

TbsSkinScrollBar::TbsSkinScrollBar(TComponent* owner, TScrollBarKind kind)
    : TbsSkinControl(owner), kind_(kind) {
  SetWidget(new QScrollBar(kind == sbHorizontal ? Qt::Horizontal : Qt::Vertical));
}

TbsSkinScrollBar::~TbsSkinScrollBar() {
  // An area whose bar is deleted under it keeps a dangling pointer; with a new bar it deletes the old one
  // itself.
  if (area_) GiveTo(area_, new QScrollBar(kind_ == sbHorizontal ? Qt::Horizontal : Qt::Vertical));
}

void TbsSkinScrollBar::AttachTo(TWinControl* control) {
  auto* area = qobject_cast<QAbstractScrollArea*>(control->Widget());
  auto* bar = static_cast<QScrollBar*>(Widget());
  if (area == nullptr || bar == nullptr) return;
  area_ = area;
  GiveTo(area, bar);
}

void TbsSkinScrollBar::GiveTo(QAbstractScrollArea* area, QScrollBar* bar) const {
  if (kind_ == sbHorizontal) {
    area->setHorizontalScrollBar(bar);
  } else {
    area->setVerticalScrollBar(bar);
  }
}

TbsSkinToolBar::TbsSkinToolBar(TComponent* owner) : TbsSkinControl(owner) {
  auto* frame = new QFrame;
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(4, 2, 4, 2);
  row->setSpacing(2);
  row->addStretch(1);
  SetSkinRole(frame, "toolbar");
  SetWidget(frame);
}

void TbsSkinToolBar::Add(TControl* control) {
  auto* row = static_cast<QHBoxLayout*>(Widget()->layout());
  QWidget* part = nullptr;
  if (control == nullptr) {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    part = line;
  } else {
    control->SetParent(this);
    part = control->Widget();
  }
  row->insertWidget(row->count() - 1, part);
}

TbsSkinStatusBar::TbsSkinStatusBar(TComponent* owner) : TbsSkinControl(owner) {
  auto* frame = new QFrame;
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(4, 2, 4, 2);
  row->setSpacing(2);
  SetSkinRole(frame, "status");
  SetWidget(frame);
}

void TbsSkinStatusBar::Add(TControl* panel, int stretch) {
  panel->SetParent(this);
  static_cast<QHBoxLayout*>(Widget()->layout())->addWidget(panel->Widget(), stretch);
}

TbsSkinStatusPanel::TbsSkinStatusPanel(TComponent* owner) : TbsSkinControl(owner) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  // A long text is cut at the edge instead of widening the form.
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  SetSkinRole(label, "status-text");
  SetWidget(label);
}

void TbsSkinStatusPanel::CaptionChanged() {
  if (auto* label = static_cast<QLabel*>(Widget())) label->setText(ToQt(Caption()));
}
