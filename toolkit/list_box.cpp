#include "toolkit/list_box.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QListView>
#include <QScopedValueRollback>

#include "data/string_vector.h"
#include "toolkit/strings_model.h"

// Qt's own rule inverts the selection of each entry that a typed text finds and of each one that a drag
// passes. Here only the space key does, and the click, which Qt reports only where no drag has left the
// entry.
class TKVXCustomListBox::View : public QListView {
 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex&,
                                                       const QEvent* event) const override {
    const bool space = event != nullptr && event->type() == QEvent::KeyPress &&
                       static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Space;
    return space ? QItemSelectionModel::Toggle : QItemSelectionModel::NoUpdate;
  }
};

TKVXCustomListBox::TKVXCustomListBox(TComponent* owner) : TbsSkinControl(owner) {
  auto* list = new View;
  SetWidget(list);
  SetTabStop(true);
  model_ = new TStringsModel(items_, this);
  list->setModel(model_);
  list->setSelectionMode(QAbstractItemView::MultiSelection);
  list->setUniformItemSizes(true);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  items_.OnChange = [this] { ItemsChanged(); };
  connect(list, &QListView::clicked, list->selectionModel(), [list](const QModelIndex& entry) {
    list->selectionModel()->select(entry, QItemSelectionModel::Toggle);
  });
  connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (!setting_) Click();
  });
}

QListView* TKVXCustomListBox::List() const {
  return static_cast<QListView*>(Widget());
}

void TKVXCustomListBox::Clear() {
  items_.Clear();
  keys_.Clear();
  names_.Clear();
}

bool TKVXCustomListBox::Selected(int index) const {
  return List() != nullptr && List()->selectionModel()->isSelected(model_->index(index));
}

void TKVXCustomListBox::SetSelected(int index, bool selected) {
  const QModelIndex entry = model_->index(index);
  if (List() == nullptr || !entry.isValid()) return;
  const QScopedValueRollback setting(setting_, true);
  List()->selectionModel()->select(entry,
                                   selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
}

int TKVXCustomListBox::SelCount() const {
  return List() == nullptr ? 0 : static_cast<int>(List()->selectionModel()->selectedRows().size());
}

corvane::StringVector TKVXCustomListBox::GetSelectedKeys() const {
  corvane::StringVector keys;
  const int count = static_cast<int>(keys_.Count());
  for (int i = 0; i < count; ++i) {
    if (Selected(i)) keys.push_back(keys_[static_cast<std::size_t>(i)]);
  }
  return keys;
}

void TKVXCustomListBox::ItemsChanged() {
  const QScopedValueRollback setting(setting_, true);
  model_->Update();
}
