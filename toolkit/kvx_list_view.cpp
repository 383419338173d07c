#include "toolkit/kvx_list_view.h"

#include <QItemSelectionModel>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

#include "data/list.h"
#include "data/string_vector.h"
#include "toolkit/decimal_text.h"
#include "toolkit/list_model.h"
#include "toolkit/list_tree.h"
#include "toolkit/text.h"

TKVXCustomListView::TKVXCustomListView(TComponent* owner)
    : TCustomListView(owner), columnIds_(std::make_unique<corvane::StringVector>()) {
  Model()->columnIds = columnIds_.get();
}

TKVXCustomListView::~TKVXCustomListView() {
  Model()->columnIds = nullptr;
  if (Tree() != nullptr) Tree()->SetSums(nullptr);
}

void TKVXCustomListView::Add(const corvane::List& rows, const std::string& columnIds) {
  if (!columnIds.empty()) *columnIds_ = corvane::StringVector(columnIds, "; ", true);
  std::vector<std::unique_ptr<TListRow>> added;
  added.reserve(rows.size());
  for (const corvane::Row& row : rows) {
    added.push_back(std::make_unique<TListRow>(Model()));
    added.back()->record.emplace(row);
  }
  Model()->Append(std::move(added));
}

// Gives all records the fields that one of them has.
static void EvenOut(std::vector<corvane::Property>& records) {
  const auto same = [&](const corvane::Property& record) { return record.sameColumns(records.front()); };
  if (std::ranges::all_of(records, same)) return;
  corvane::Row all;
  for (const corvane::Property& record : records) {
    for (const auto& [key, field] : record) all[key];
  }
  for (corvane::Property& record : records) {
    for (const auto& [key, field] : all) record[key];
  }
}

void TKVXCustomListView::GetDataVector(corvane::List& rows, int mode) const {
  std::vector<corvane::Property> records;
  const int selected = ItemIndex();
  for (int i = 0; i < Model()->Count(); ++i) {
    const TListRow& row = Model()->Row(i);
    const bool wanted = mode == dvChecked ? row.checked : mode != dvSelected || i == selected;
    if (wanted && row.record) records.push_back(*row.record);
  }
  EvenOut(records);
  rows.clear();
  for (const corvane::Property& record : records) rows.addProperty(record);
}

bool TKVXCustomListView::Get(corvane::Property& row, const corvane::StringVector& columnIds,
                             int index) const {
  return Get(row, columnIds, index < 0 || index >= Items().Count() ? nullptr : Items()[index]);
}

bool TKVXCustomListView::Get(corvane::Property& row, const corvane::StringVector&,
                             const TListItem* item) const {
  const corvane::Property* record = item == nullptr ? nullptr : item->Data();
  if (record == nullptr) {
    row.clear();
    return false;
  }
  row = *record;
  return true;
}

void TKVXCustomListView::Modify(const corvane::Property& row, const corvane::StringVector&, TListItem* item) {
  if (item == nullptr) return;
  Model()->Row(item->Index()).record = row;
  RefreshItem(item);
}

corvane::Property* TKVXCustomListView::PropertyOf(const TListItem* item) const {
  if (item == nullptr) return nullptr;
  if (Tree() != nullptr) Tree()->viewport()->update();
  return item->Data();
}

void TKVXCustomListView::RefreshItem(const TListItem* item) {
  if (item != nullptr) Model()->RecordChanged(Model()->Row(item->Index()));
}

void TKVXCustomListView::CheckAll() {
  Model()->CheckAll(true);
}

void TKVXCustomListView::UnCheckAll() {
  Model()->CheckAll(false);
}

int TKVXCustomListView::CheckedCount() const {
  return Model()->CheckedCount();
}

void TKVXCustomListView::SetKinds(std::function<std::uint8_t(const corvane::Property& record)> kindsOf) {
  Model()->SetKinds(std::move(kindsOf));
}

int TKVXCustomListView::CheckedCount(unsigned kind) const {
  return Model()->CheckedCount(kind);
}

void TKVXCustomListView::DelItem(int index) {
  Items().Delete(index);
}

void TKVXCustomListView::DelItems(const std::vector<int>& indexes) {
  const auto goes = [&](int index) { return std::ranges::binary_search(indexes, index); };
  const int focused = ItemFocused() == nullptr ? -1 : ItemFocused()->Index();
  const int selected = ItemIndex();
  if (goes(selected)) SetSelected(nullptr);
  const int scrolled = Tree() == nullptr ? 0 : Tree()->verticalScrollBar()->value();
  const auto now = [&](int index) {
    return index - static_cast<int>(std::ranges::lower_bound(indexes, index) - indexes.begin());
  };
  Model()->DeleteIf(goes);
  if (Tree() == nullptr) return;
  // The rows that stay keep their states; nothing has changed for the user, so nothing is reported.
  const QSignalBlocker quiet(Tree()->selectionModel());
  if (focused >= 0 && !goes(focused)) SetItemFocused(Items()[now(focused)]);
  if (selected >= 0 && !goes(selected)) SetSelected(Items()[now(selected)]);
  Tree()->verticalScrollBar()->setValue(scrolled);
}

std::string TKVXCustomListView::GetTotalMoney(int column, bool checkedOnly) const {
  if (column < 1 || column > Columns().Count()) return {};
  THundredths total = 0;
  for (int i = 0; i < Model()->Count(); ++i) {
    const TListRow& row = Model()->Row(i);
    if (checkedOnly && !row.checked) continue;
    total += ParseAmount(Model()->Text(row, column - 1)).value_or(0);
  }
  return AmountText(total);
}

std::string TKVXCustomListView::SumText(int column) const {
  return Columns()[column]->Tag() == cfAmount ? GroupNumber(GetTotalMoney(column + 1, false)) : std::string();
}

void TKVXCustomListView::SetShowSumRow(bool show) {
  showSumRow_ = show;
  if (Tree() == nullptr) return;
  if (show) {
    Tree()->SetSums([this](int column) { return ToQt(SumText(column)); });
  } else {
    Tree()->SetSums(nullptr);
  }
}

void TKVXCustomListView::ColumnMoved(int from, int to) {
  const auto last = static_cast<std::size_t>(std::max(from, to));
  if (last >= columnIds_->size()) return;
  const std::string id = (*columnIds_)[static_cast<std::size_t>(from)];
  columnIds_->erase(columnIds_->begin() + from);
  columnIds_->insert(columnIds_->begin() + to, id);
}
