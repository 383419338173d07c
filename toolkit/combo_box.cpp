#include "toolkit/combo_box.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QPersistentModelIndex>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>

#include "data/row.h"
#include "toolkit/event_guard.h"
#include "toolkit/strings_model.h"
#include "toolkit/text.h"

// Letters that a box shows at least; longer entries don't make it wider.
static constexpr int kMinLetters = 8;

// The Qt box: cuts what is too long, and leaves the wheel to the scroll box around it until it has the
// focus, so that scrolling a condition panel changes no condition.
class TCustomComboBox::Box : public QComboBox {
 public:
  Box() {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kMinLetters);
    setFocusPolicy(Qt::StrongFocus);
  }

  // Both hints are the same here, but Qt keeps the smallest one when the font changes.
  QSize minimumSizeHint() const override { return sizeHint(); }

  void showPopup() override {
    view()->setTextElideMode(Qt::ElideRight);
    QComboBox::showPopup();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, TextWidth(option));
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
  }

  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }

  bool event(QEvent* event) override {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QComboBox::event(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const bool cut = fontMetrics().horizontalAdvance(currentText()) > TextWidth(option);
    const QVariant tip = currentData(Qt::ToolTipRole);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), cut ? tip.toString() : QString(), this);
    return true;
  }

 private:
  int TextWidth(const QStyleOptionComboBox& option) const {
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width() -
           4;
  }
};

TCustomComboBox::TCustomComboBox(TComponent* owner) : TbsSkinControl(owner) {
  auto* box = new Box;
  SetWidget(box);
  SetTabStop(true);
  model_ = new TStringsModel(items_, this);
  box->setModel(model_);
  items_.OnChange = [this] { ItemsChanged(); };
  connect(box, &QComboBox::currentIndexChanged, this, [this] {
    if (setting_) return;
    reported_ = true;
    Picked();
  });
  connect(box, &QComboBox::activated, this, [this] {
    if (!reported_) Picked();
    reported_ = false;
  });
}

QComboBox* TCustomComboBox::Combo() const {
  return static_cast<QComboBox*>(Widget());
}

int TCustomComboBox::ItemIndex() const {
  return Combo() == nullptr ? -1 : Combo()->currentIndex();
}

void TCustomComboBox::SetItemIndex(int index) {
  if (Combo() == nullptr) return;
  const QScopedValueRollback setting(setting_, true);
  Combo()->setCurrentIndex(index < Combo()->count() ? index : -1);
}

std::string TCustomComboBox::Text() const {
  const int index = ItemIndex();
  return index < 0 ? std::string() : items_[static_cast<std::size_t>(index)];
}

void TCustomComboBox::SetText(const std::string& text) {
  if (ItemIndex() >= 0 && Text() == text) return;
  const int index = items_.IndexOf(text);
  if (index >= 0) SetItemIndex(index);
}

void TCustomComboBox::Clear() {
  items_.Clear();
}

QString TCustomComboBox::PublishedText() const {
  return ToQt(Text());
}

void TCustomComboBox::SetPublishedText(const QString& text) {
  SetText(FromQt(text));
}

void TCustomComboBox::ItemsChanged() {
  if (Combo() == nullptr) return;
  const QPersistentModelIndex chosen = model_->index(ItemIndex());
  const QScopedValueRollback setting(setting_, true);
  model_->Update();
  Combo()->setCurrentIndex(chosen.isValid() ? chosen.row() : -1);
}

void TCustomComboBox::Picked() {
  FireEvent(OnChange, this);
}

void TKVXCustomComboBox::Init(const corvane::Row& row) {
  std::vector<std::string> keys;
  std::vector<std::string> names;
  for (const auto& [key, field] : row) {
    keys.push_back(key);
    names.push_back(field.getValue());
  }
  Clear();
  keys_.Assign(std::move(keys));
  Items().Assign(names);
  names_.Assign(std::move(names));
}

int TKVXCustomComboBox::FindKeyIndex(const std::string& key) const {
  return keys_.IndexOf(key);
}

std::string TKVXCustomComboBox::GetKey() const {
  const int index = ItemIndex();
  if (index < 0 || static_cast<std::size_t>(index) >= keys_.Count()) return {};
  return keys_[static_cast<std::size_t>(index)];
}

void TKVXCustomComboBox::Clear() {
  TCustomComboBox::Clear();
  keys_.Clear();
  names_.Clear();
}
