#include "toolkit/list_view.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "toolkit/event_guard.h"
#include "toolkit/list_model.h"
#include "toolkit/list_tree.h"

// A column that is shown can't be dragged narrower than this, so that it doesn't get lost.
static constexpr int kMinDraggedWidth = 16;

TCustomListView::TCustomListView(TComponent* owner)
    : TbsSkinControl(owner), model_(new TListModel(this)), items_(model_) {
  auto* tree = new TListTree;
  SetWidget(tree);
  SetTabStop(true);
  tree->setModel(model_);
  tree->ShowSelection();
  ConnectHeader();
  tree->OnMouse = [this](QMouseEvent* event) { TreeMouse(event); };
  columns_.OnChange = [this](int index) { ShowColumn(index); };
  columns_.OnCountChange = [this](int first, int last, bool come, const std::function<void()>& change) {
    model_->ChangeColumns(first, last, come, change);
  };
  model_->OnUserCheck = [this](TListItem* item) { FireEvent(OnItemCheck, this, item); };
  connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this](const QItemSelection& selected, const QItemSelection& deselected) {
            const int gone = deselected.isEmpty() ? -1 : deselected.first().top();
            const int come = selected.isEmpty() ? -1 : selected.first().top();
            if (gone >= 0) ReportSelection(gone, false);
            if (come >= 0) ReportSelection(come, true);
          });
}

TCustomListView::~TCustomListView() {
  delete Widget();
  delete model_;
}

TListTree* TCustomListView::Tree() const {
  return static_cast<TListTree*>(Widget());
}

TListItem* TCustomListView::Selected() const {
  const int index = ItemIndex();
  return index < 0 ? nullptr : &model_->Row(index).item;
}

void TCustomListView::SetSelected(TListItem* item) {
  SetItemIndex(item == nullptr ? -1 : item->Index());
}

int TCustomListView::ItemIndex() const {
  if (Tree() == nullptr) return -1;
  const QItemSelection selection = Tree()->selectionModel()->selection();
  return selection.isEmpty() ? -1 : selection.first().top();
}

void TCustomListView::SetItemIndex(int index) {
  if (Tree() == nullptr) return;
  QItemSelectionModel* selection = Tree()->selectionModel();
  if (index < 0 || index >= model_->Count() || columns_.Count() == 0) {
    selection->clearSelection();
    return;
  }
  selection->setCurrentIndex(model_->index(index, 0),
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

TListItem* TCustomListView::ItemFocused() const {
  const QModelIndex current = Tree() == nullptr ? QModelIndex() : Tree()->currentIndex();
  return current.isValid() ? &model_->Row(current.row()).item : nullptr;
}

void TCustomListView::SetItemFocused(TListItem* item) {
  if (Tree() == nullptr) return;
  const QModelIndex index = item == nullptr ? QModelIndex() : model_->index(item->Index(), 0);
  Tree()->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

TListItem* TCustomListView::GetItemAt(int x, int y) const {
  if (Tree() == nullptr) return nullptr;
  const QPoint point = Tree()->viewport()->mapFrom(Tree(), QPoint(x, y));
  const QModelIndex index = point.y() < 0 ? QModelIndex() : Tree()->indexAt(point);
  return index.isValid() ? &model_->Row(index.row()).item : nullptr;
}

void TCustomListView::FontChanged() {
  TbsSkinControl::FontChanged();
  // Under a skin Qt doesn't hand a font on to what a widget is made of.
  if (Tree() != nullptr) Tree()->header()->setFont(Font()->ToQFont());
}

void TCustomListView::Clear() {
  SetSelected(nullptr);
  model_->Clear();
}

void TCustomListView::SetCheckboxes(bool on) {
  checkboxes_ = on;
  model_->TouchAll();
}

void TCustomListView::SetGridLines(bool on) {
  gridLines_ = on;
  if (Tree() != nullptr) Tree()->SetGridLines(on);
}

void TCustomListView::SetHideSelection(bool on) {
  hideSelection_ = on;
  if (Tree() != nullptr) Tree()->SetHideSelection(on);
}

void TCustomListView::SetShowColumnHeaders(bool on) {
  showColumnHeaders_ = on;
  if (Tree() != nullptr) Tree()->setHeaderHidden(!on);
}

bool TCustomListView::WidgetEvent(QWidget* widget, QEvent* event) {
  const QPointer<TCustomListView> self(this);
  if (TbsSkinControl::WidgetEvent(widget, event) || !self) return true;
  if (event->type() != QEvent::KeyPress || widget != Widget() || !checkboxes_) return false;
  const QModelIndex current = Tree()->currentIndex();
  if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Space || !current.isValid()) return false;
  const QModelIndex box = current.siblingAtColumn(0);
  model_->setData(box, model_->Row(box.row()).checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
  return true;
}

void TCustomListView::TreeMouse(QMouseEvent* event) {
  if (Tree() != nullptr) TbsSkinControl::WidgetEvent(Tree()->viewport(), event);
}

void TCustomListView::ReportSelection(int row, bool selected) {
  if (row < model_->Count()) FireEvent(OnSelectItem, this, &model_->Row(row).item, selected);
}

void TCustomListView::ConnectHeader() {
  QHeaderView* header = Tree()->header();
  header->setMinimumSectionSize(kMinDraggedWidth);
  connect(header, &QHeaderView::sectionResized, this,
          [this](int index, int, int width) { SectionResized(index, width); });
  connect(header, &QHeaderView::sectionMoved, this,
          [this](int, int from, int to) { SectionMoved(from, to); });
}

void TCustomListView::ShowColumn(int index) {
  if (Tree() == nullptr || arranging_) return;
  const QScopedValueRollback arranging(arranging_, true);
  PlaceColumn(index);
  Q_EMIT model_->headerDataChanged(Qt::Horizontal, index, index);
  Tree()->viewport()->update();
}

void TCustomListView::PlaceColumn(int index) {
  const TListColumn& column = *columns_[index];
  Tree()->setColumnHidden(index, column.Hidden());
  if (!column.Hidden()) Tree()->header()->resizeSection(index, column.Width());
}

void TCustomListView::SectionResized(int index, int width) {
  if (arranging_ || index >= columns_.Count()) return;
  TListColumn& column = *columns_[index];
  if (column.Hidden()) return;
  column.TakeDraggedWidth(width);
  if (column.Width() == width) return;
  const QScopedValueRollback arranging(arranging_, true);
  Tree()->header()->resizeSection(index, column.Width());
}

// The collection takes the user's order, and the header's own order goes back to the collection's.
void TCustomListView::SectionMoved(int from, int to) {
  if (arranging_ || from >= columns_.Count() || to >= columns_.Count()) return;
  const QScopedValueRollback arranging(arranging_, true);
  Tree()->header()->moveSection(to, from);
  columns_.Move(from, to);
  model_->MoveTexts(from, to);
  ColumnMoved(from, to);
  for (int i = 0; i < columns_.Count(); ++i) PlaceColumn(i);
  model_->TouchAll();
}

void TCustomListView::ColumnMoved(int, int) {}
