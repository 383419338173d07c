#include "toolkit/list_model.h"

#include <QBrush>
#include <QColor>
#include <algorithm>

#include "toolkit/conversion.h"
#include "toolkit/decimal_text.h"
#include "toolkit/list_view.h"
#include "toolkit/text.h"

// As a number: of a value of the flags' own type Qt would remember where this library describes the type, and
// look there again once the library is gone.
static int ToQtAlignment(const TListColumn& column) {
  const bool right = column.Alignment() == taRightJustify || column.Tag() == cfRightText;
  const Qt::Alignment across = right                            ? Qt::AlignRight
                               : column.Alignment() == taCenter ? Qt::AlignHCenter
                                                                : Qt::AlignLeft;
  return static_cast<int>((across | Qt::AlignVCenter).toInt());
}

int TListModel::IndexOf(TListRow* row) const {
  const auto at = static_cast<std::size_t>(row->index);
  if (at < rows_.size() && rows_[at].get() == row) return row->index;
  for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i]->index = static_cast<int>(i);
  return row->index;
}

const std::string* TListModel::FieldOf(const TListRow& row, int column) const {
  const auto at = static_cast<std::size_t>(column);
  if (!row.record || columnIds == nullptr || at >= columnIds->size()) return nullptr;
  return &(*columnIds)[at];
}

std::string TListModel::Text(const TListRow& row, int column) const {
  if (const std::string* field = FieldOf(row, column)) return row.record->getValue(*field);
  const auto at = static_cast<std::size_t>(column);
  return at < row.texts.size() ? row.texts[at] : std::string();
}

void TListModel::SetText(TListRow& row, int column, const std::string& text) {
  if (const std::string* field = FieldOf(row, column)) {
    (*row.record)[*field] = text;
  } else {
    const auto at = static_cast<std::size_t>(column);
    if (at >= row.texts.size()) row.texts.resize(at + 1);
    row.texts[at] = text;
  }
  RecordChanged(row);
}

void TListModel::CountTick(TListRow& row, int by) {
  checked_ += by;
  if (by > 0 && !row.kinds && kindsOf_ && row.record) row.kinds = kindsOf_(*row.record);
  const unsigned kinds = row.kinds.value_or(0);
  for (unsigned kind = 0; kind < kMaxKinds; ++kind) {
    if ((kinds >> kind & 1U) != 0) checkedOfKind_[kind] += by;
  }
}

void TListModel::SetKinds(std::function<std::uint8_t(const corvane::Property& record)> kindsOf) {
  kindsOf_ = std::move(kindsOf);
  checked_ = 0;
  checkedOfKind_ = {};
  for (const auto& row : rows_) {
    row->kinds.reset();
    if (row->checked) CountTick(*row, 1);
  }
}

void TListModel::RecordChanged(TListRow& row) {
  if (row.checked) CountTick(row, -1);
  row.kinds.reset();
  if (row.checked) CountTick(row, 1);
  Touch(IndexOf(&row));
}

void TListModel::SetChecked(TListRow& row, bool checked) {
  if (row.checked == checked) return;
  row.checked = checked;
  CountTick(row, checked ? 1 : -1);
  Touch(IndexOf(&row));
}

void TListModel::CheckAll(bool checked) {
  if (rows_.empty()) return;
  for (const auto& row : rows_) {
    if (row->checked != checked) CountTick(*row, checked ? 1 : -1);
    row->checked = checked;
  }
  // Only the columns with ticks: a view looks at each cell that is reported to it.
  const int last = std::min(FirstVisibleColumn(), columnCount() - 1);
  if (last >= 0) Q_EMIT dataChanged(index(0, 0), index(Count() - 1, last), {Qt::CheckStateRole});
}

TListRow& TListModel::Insert(int index) {
  if (index < 0 || index > Count()) throw std::out_of_range("no such row");
  auto row = std::make_unique<TListRow>(this);
  row->index = index;
  TListRow& inserted = *row;
  beginInsertRows({}, index, index);
  rows_.insert(rows_.begin() + index, std::move(row));
  endInsertRows();
  return inserted;
}

void TListModel::Append(std::vector<std::unique_ptr<TListRow>> rows) {
  if (rows.empty()) return;
  const bool fill = rows_.empty();
  const int first = Count();
  if (fill) {
    beginResetModel();
  } else {
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
  }
  rows_.reserve(rows_.size() + rows.size());
  for (auto& row : rows) {
    row->index = Count();
    rows_.push_back(std::move(row));
  }
  fill ? endResetModel() : endInsertRows();
}

void TListModel::Delete(int index) {
  if (TListRow& row = Row(index); row.checked) CountTick(row, -1);
  beginRemoveRows({}, index, index);
  rows_.erase(rows_.begin() + index);
  endRemoveRows();
}

void TListModel::DeleteIf(const std::function<bool(int index)>& goes) {
  std::vector<std::unique_ptr<TListRow>> kept;
  kept.reserve(rows_.size());
  beginResetModel();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (goes(static_cast<int>(i))) {
      if (rows_[i]->checked) CountTick(*rows_[i], -1);
      continue;
    }
    rows_[i]->index = static_cast<int>(kept.size());
    kept.push_back(std::move(rows_[i]));
  }
  rows_ = std::move(kept);
  endResetModel();
}

void TListModel::Clear() {
  if (rows_.empty()) return;
  beginResetModel();
  rows_.clear();
  checked_ = 0;
  checkedOfKind_ = {};
  endResetModel();
}

void TListModel::ChangeColumns(int first, int last, bool come, const std::function<void()>& change) {
  if (come) {
    beginInsertColumns({}, first, last);
    change();
    endInsertColumns();
  } else {
    beginRemoveColumns({}, first, last);
    change();
    endRemoveColumns();
  }
}

void TListModel::MoveTexts(int from, int to) {
  const auto count = static_cast<std::size_t>(std::max(from, to)) + 1;
  for (const auto& row : rows_) {
    if (row->texts.empty()) continue;
    row->texts.resize(std::max(row->texts.size(), count));
    const auto texts = row->texts.begin();
    if (from < to) {
      std::rotate(texts + from, texts + from + 1, texts + to + 1);
    } else {
      std::rotate(texts + to, texts + from, texts + from + 1);
    }
  }
}

void TListModel::Touch(int row) {
  if (columnCount() > 0) Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void TListModel::TouchAll() {
  if (columnCount() == 0) return;
  Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  if (!rows_.empty()) Q_EMIT dataChanged(index(0, 0), index(Count() - 1, columnCount() - 1));
}

int TListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Count();
}

int TListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : view_->Columns().Count();
}

int TListModel::FirstVisibleColumn() const {
  const TListColumns& columns = view_->Columns();
  int column = 0;
  while (column < columns.Count() && columns[column]->Hidden()) ++column;
  return column;
}

bool TListModel::ShowsCheck(int column) const {
  return view_->Checkboxes() && (column == 0 || column == FirstVisibleColumn());
}

QVariant TListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= Count() || index.column() >= columnCount()) return {};
  const TListRow& row = Row(index.row());
  const TListColumn& column = *view_->Columns()[index.column()];
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(CellText(column.Tag(), Text(row, index.column())));
    case Qt::TextAlignmentRole:
      return ToQtAlignment(column);
    case Qt::CheckStateRole:
      return ShowsCheck(index.column()) ? QVariant(row.checked ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::ForegroundRole: {
      const int color = row.record ? StrToIntDef(row.record->getValue("Color"), -1) : -1;
      if (color < 0) return {};
      return QBrush(QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF));
    }
    default:
      return {};
  }
}

bool TListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !index.isValid() || !view_->Checkboxes()) return false;
  TListRow& row = Row(index.row());
  const bool checked = value.toInt() == Qt::Checked;
  if (row.checked == checked) return true;
  SetChecked(row, checked);
  if (OnUserCheck) OnUserCheck(&row.item);
  return true;
}

QVariant TListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const TListColumn& column = *view_->Columns()[section];
  if (role == Qt::DisplayRole) return ToQt(column.Caption());
  if (role == Qt::ToolTipRole) return ToToolTip(column.Caption());
  if (role == Qt::TextAlignmentRole) return ToQtAlignment(column);
  return {};
}

Qt::ItemFlags TListModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  return ShowsCheck(index.column()) ? flags | Qt::ItemIsUserCheckable : flags;
}
