#include "toolkit/list_tree.h"

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include "toolkit/text.h"

static constexpr int kRowRoom = 6;
static constexpr int kTextRoom = 4;
// Pixels to the left and right of a caption together.
static constexpr int kCaptionRoom = 14;
static constexpr int kMinRows = 3;

namespace {

// A caption that is too long is cut at its end with "...": a skin would cut both its ends.
class ListHeader : public QHeaderView {
 public:
  explicit ListHeader(QWidget* tree) : QHeaderView(Qt::Horizontal, tree) {
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }

 protected:
  void initStyleOptionForIndex(QStyleOptionHeader* option, int index) const override {
    QHeaderView::initStyleOptionForIndex(option, index);
    const int room = sectionSize(index);
    if (style()->sizeFromContents(QStyle::CT_HeaderSection, option, {}, this).width() <= room) return;
    // A skin's caption is bold.
    QFont bold = font();
    bold.setBold(true);
    option->text = QFontMetrics(bold).elidedText(option->text, Qt::ElideRight, room - kCaptionRoom);
  }
};

// Gives the rows some room above and below the text.
class RowDelegate : public QStyledItemDelegate {
 public:
  explicit RowDelegate(TListTree* tree) : QStyledItemDelegate(tree), tree_(tree) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRowRoom);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (tree_->HidesSelection()) option->state &= ~QStyle::State_Selected;
  }

 private:
  TListTree* tree_;
};

}  // namespace

// The strip below the rows. It asks for its texts when something in the list has changed, not at each paint.
class TListSumBar : public QWidget {
 public:
  TListSumBar(TListTree* tree, std::function<QString(int column)> sums)
      : QWidget(tree), tree_(tree), sums_(std::move(sums)) {
    const auto renew = [this] {
      fresh_ = false;
      update();
    };
    const QAbstractItemModel* model = tree->model();
    connect(model, &QAbstractItemModel::dataChanged, this, renew);
    connect(model, &QAbstractItemModel::modelReset, this, renew);
    connect(model, &QAbstractItemModel::rowsInserted, this, renew);
    connect(model, &QAbstractItemModel::rowsRemoved, this, renew);
    connect(model, &QAbstractItemModel::headerDataChanged, this, renew);
    const auto move = [this] { update(); };
    connect(tree->header(), &QHeaderView::sectionResized, this, move);
    connect(tree->header(), &QHeaderView::geometriesChanged, this, move);
    connect(tree->horizontalScrollBar(), &QScrollBar::valueChanged, this, move);
    show();
  }

  int Height() const { return tree_->fontMetrics().height() + kRowRoom; }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (!fresh_) Renew();
    QPainter painter(this);
    painter.fillRect(rect(), palette().alternateBase());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(0, 0, width(), 0);
    painter.setPen(palette().color(QPalette::Text));
    painter.setFont(tree_->font());
    for (int column = 0; column < texts_.size(); ++column) {
      if (tree_->isColumnHidden(column)) continue;
      const QRect cell(tree_->columnViewportPosition(column), 0, tree_->columnWidth(column), height());
      painter.drawText(cell.adjusted(kTextRoom, 0, -kTextRoom, 0), Qt::AlignRight | Qt::AlignVCenter,
                       texts_[column]);
    }
  }

 private:
  void Renew() {
    texts_.clear();
    const int columns = tree_->model()->columnCount();
    for (int column = 0; column < columns; ++column) texts_.append(sums_(column));
    fresh_ = true;
  }

  TListTree* tree_;
  std::function<QString(int column)> sums_;
  QStringList texts_;
  bool fresh_ = false;
};

TListTree::TListTree() {
  setHeader(new ListHeader(this));
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setIndentation(0);
  setAllColumnsShowFocus(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setItemDelegate(new RowDelegate(this));
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(true);
  header()->setFirstSectionMovable(true);
  header()->setHighlightSections(false);
}

void TListTree::SetGridLines(bool on) {
  gridLines_ = on;
  viewport()->update();
}

void TListTree::SetHideSelection(bool on) {
  hideSelection_ = on;
  ShowSelection();
}

void TListTree::SetSums(std::function<QString(int column)> sums) {
  delete sumBar_;
  sumBar_ = sums ? new TListSumBar(this, std::move(sums)) : nullptr;
  updateGeometries();
}

int TListTree::RowHeight() const {
  if (model() != nullptr && model()->rowCount() > 0) return rowHeight(model()->index(0, 0));
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.features |= QStyleOptionViewItem::HasDisplay;
  option.text = QStringLiteral("x");
  return style()->sizeFromContents(QStyle::CT_ItemViewItem, &option, {}, this).height() + kRowRoom;
}

QSize TListTree::minimumSizeHint() const {
  const int head = isHeaderHidden() ? 0 : header()->sizeHint().height();
  const int foot = horizontalScrollBar()->sizeHint().height() + (sumBar_ == nullptr ? 0 : sumBar_->Height());
  const int height = head + kMinRows * RowHeight() + foot + 2 * frameWidth();
  return {QTreeView::minimumSizeHint().width(), height};
}

QSize TListTree::sizeHint() const {
  return {QTreeView::sizeHint().width(), minimumSizeHint().height()};
}

void TListTree::mousePressEvent(QMouseEvent* event) {
  const QPointer<TListTree> self(this);
  QTreeView::mousePressEvent(event);
  if (!self) return;
  if (!indexAt(event->position().toPoint()).isValid()) clearSelection();
  Report(event);
}

void TListTree::mouseReleaseEvent(QMouseEvent* event) {
  const QPointer<TListTree> self(this);
  QTreeView::mouseReleaseEvent(event);
  if (self) Report(event);
}

// Two quick clicks on a check box are two clicks: Qt takes the second as a double click and would ignore it.
void TListTree::mouseDoubleClickEvent(QMouseEvent* event) {
  const QPointer<TListTree> self(this);
  if (OnCheckBox(event->position().toPoint())) {
    QTreeView::mousePressEvent(event);
  } else {
    QTreeView::mouseDoubleClickEvent(event);
  }
  if (self) Report(event);
}

void TListTree::focusInEvent(QFocusEvent* event) {
  QTreeView::focusInEvent(event);
  ShowSelection();
}

void TListTree::focusOutEvent(QFocusEvent* event) {
  QTreeView::focusOutEvent(event);
  ShowSelection();
}

bool TListTree::HidesSelection() const {
  return hideSelection_ && !hasFocus();
}

// A style takes the row's colour from the palette and a skin the cells' from their state (see RowDelegate).
void TListTree::ShowSelection() {
  QPalette colours;
  if (HidesSelection()) {
    colours.setBrush(QPalette::Highlight, Qt::transparent);
    colours.setBrush(QPalette::HighlightedText, colours.text());
  }
  setPalette(colours);
}

void TListTree::Report(QMouseEvent* event) {
  OnMouse(event);
  event->accept();
}

bool TListTree::OnCheckBox(const QPoint& point) const {
  const QModelIndex index = indexAt(point);
  if (!index.flags().testFlag(Qt::ItemIsUserCheckable)) return false;
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = visualRect(index);
  option.features |= QStyleOptionViewItem::HasCheckIndicator;
  return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this).contains(point);
}

bool TListTree::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTreeView::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QModelIndex index = indexAt(help->pos());
  const QString text = index.data().toString();
  const bool cut = index.isValid() && sizeHintForIndex(index).width() > columnWidth(index.column());
  if (!cut) return QTreeView::viewportEvent(event);
  QToolTip::showText(help->globalPos(), ToolTipOf(text), this);
  return true;
}

void TListTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QTreeView::drawRow(painter, option, index);
  if (!gridLines_) return;
  painter->save();
  const int hint = style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this);
  painter->setPen(QColor::fromRgba(static_cast<QRgb>(hint)));
  painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  const int columns = model()->columnCount();
  for (int column = 0; column < columns; ++column) {
    if (isColumnHidden(column)) continue;
    const int right = columnViewportPosition(column) + columnWidth(column) - 1;
    painter->drawLine(right, option.rect.top(), right, option.rect.bottom());
  }
  painter->restore();
}

void TListTree::updateGeometries() {
  QTreeView::updateGeometries();
  const int height = sumBar_ == nullptr ? 0 : sumBar_->Height();
  QMargins margins = viewportMargins();
  if (margins.bottom() != height) {
    margins.setBottom(height);
    setViewportMargins(margins);
  }
  if (sumBar_ == nullptr) return;
  const QRect rows = viewport()->geometry();
  sumBar_->setGeometry(rows.left(), rows.bottom() + 1, rows.width(), height);
}
