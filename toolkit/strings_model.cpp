#include "toolkit/strings_model.h"

#include <algorithm>

#include "toolkit/string_list.h"
#include "toolkit/text.h"

void TStringsModel::Update() {
  const std::vector<std::string> now(strings_.begin(), strings_.end());
  const auto differ = std::mismatch(shown_.begin(), shown_.end(), now.begin(), now.end());
  // Of equal texts the one at the place of the change came or went.
  const std::size_t same = static_cast<std::size_t>(differ.first - shown_.begin());
  const auto head = static_cast<std::ptrdiff_t>(std::min(same, strings_.ChangedAt()));
  std::ptrdiff_t tail = 0;
  const std::ptrdiff_t max = static_cast<std::ptrdiff_t>(std::min(shown_.size(), now.size())) - head;
  while (tail < max && shown_.rbegin()[tail] == now.rbegin()[tail]) ++tail;
  const std::ptrdiff_t gone = static_cast<std::ptrdiff_t>(shown_.size()) - head - tail;
  const std::ptrdiff_t come = static_cast<std::ptrdiff_t>(now.size()) - head - tail;
  const int first = static_cast<int>(head);
  if (gone == come && gone > 0) {
    shown_ = now;
    Q_EMIT dataChanged(index(first), index(first + static_cast<int>(come) - 1));
    return;
  }
  if (gone > 0) {
    beginRemoveRows({}, first, first + static_cast<int>(gone) - 1);
    shown_.erase(shown_.begin() + head, shown_.begin() + head + gone);
    endRemoveRows();
  }
  if (come > 0) {
    beginInsertRows({}, first, first + static_cast<int>(come) - 1);
    shown_.insert(shown_.begin() + head, now.begin() + head, now.begin() + head + come);
    endInsertRows();
  }
}

int TStringsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant TStringsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const std::string& text = shown_[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole || role == Qt::EditRole) return ToQt(text);
  if (role == Qt::ToolTipRole) return ToToolTip(text);
  return {};
}
