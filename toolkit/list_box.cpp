#include "toolkit/list_box.h"

#include <QItemSelectionModel>
#include <QListView>
#include <QScopedValueRollback>

#include "data/string_vector.h"
#include "toolkit/application.h"
#include "toolkit/strings_model.h"

TKVXCustomListBox::TKVXCustomListBox(TComponent* owner) : TbsSkinControl(owner) {
  auto* list = new QListView;
  SetWidget(list);
  SetTabStop(true);
  model_ = new TStringsModel(items_, this);
  list->setModel(model_);
  list->setSelectionMode(QAbstractItemView::MultiSelection);
  list->setUniformItemSizes(true);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  items_.OnChange = [this] { ItemsChanged(); };
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
