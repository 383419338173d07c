#include "data/list.h"

#include <algorithm>
#include <utility>

#include "data/detail/keys.h"
#include "data/detail/tags.h"
#include "data/exception.h"

namespace corvane {

List::List() : Element(detail::tagLabel<detail::kListTag>()) {}

List::List(const detail::Label& tag) : Element(tag) {}

List::~List() = default;

List& List::operator=(const List& other) {
  if (this == &other) return *this;
  std::vector<Row> rows(other.rows_);  // not assigned: assigning to rows would keep their tags
  rows_.swap(rows);
  copyAttributes(other);
  return *this;
}

List& List::operator=(List&& other) noexcept {
  if (this == &other) return *this;
  moveAttributes(other, rows_.empty());
  rows_ = std::exchange(other.rows_, {});
  return *this;
}

void List::clear() {
  Element::clear();
  rows_.clear();
}

Row& List::operator[](unsigned index) {
  if (index >= rows_.size()) throw TException(detail::key::kNoSuchRow);
  return rows_[index];
}

const Row& List::operator[](unsigned index) const {
  if (index >= rows_.size()) throw TException(detail::key::kNoSuchRow);
  return rows_[index];
}

Row List::getRow(unsigned index) const {
  if (index >= rows_.size()) throw TException(detail::key::kNoSuchRowToCopy);
  return rows_[index];
}

bool List::isCompatible(const Row& row) const {
  return rows_.empty() || rows_.front().sameColumns(row);
}

void List::addRow(const Row& row) {
  if (!isCompatible(row)) throw TException(detail::key::kOtherColumns);
  append(Row(row), detail::key::kOtherColumns);
}

void List::addRow(Row&& row) {
  append(std::move(row), detail::key::kOtherColumns);
}

void List::addProperty(const Property& property) {
  Row row;
  row = property;
  append(std::move(row), detail::key::kOtherPropertyColumns);
}

void List::append(Row&& row, const char* key) {
  if (!isCompatible(row)) throw TException(key);
  rows_.push_back(std::move(row));
  if (rows_.size() == 1) return;
  // Rows that were built one by one share the first row's names from here on.
  auto& shape = rows_.back().shape_;
  const auto& first = rows_.front().shape_;
  if (shape && first && shape.get() != first.get() && shape->sameSlots(*first)) shape = first;
}

void List::removeRow(unsigned index) {
  if (index >= rows_.size()) return;
  const auto place = rows_.begin() + index;
  const Row removed = std::move(*place);  // so that the rows that move up bring their tags along
  rows_.erase(place);
}

std::string_view List::valueIn(Row& row, std::string_view column) {
  const std::uint32_t slot = row.find(column);
  return slot == detail::RowShape::kNoSlot || column.empty() ? row[column] : row.cells_.value(slot);
}

int List::find(std::string_view column, std::string_view value, unsigned from) {
  for (std::size_t at = from; at < rows_.size(); ++at)
    if (valueIn(rows_[at], column) == value) return static_cast<int>(at);
  return -1;
}

List List::select(std::string_view column, const StringVector& values) {
  List result;
  for (Row& row : rows_)
    if (values.indexOf(valueIn(row, column)) >= 0) result.addRow(row);
  return result;
}

List List::filter(const Row& criteria, bool matchAll) const {
  if (matchAll && !rows_.empty() && criteria.hasField("")) throw TException(detail::key::kEmptyColumnName);
  List result;
  for (const Row& row : rows_) {
    const auto agrees = [&](const auto& criterion) {
      const Field& wanted = criterion.second;
      return matchAll ? row.getValue(criterion.first) == wanted.getValue() : row.containsField(wanted);
    };
    const bool kept = matchAll ? std::all_of(criteria.begin(), criteria.end(), agrees)
                               : std::any_of(criteria.begin(), criteria.end(), agrees);
    if (kept) result.rows_.push_back(row);
  }
  return result;
}

PropertyVector::PropertyVector() = default;

PropertyVector::PropertyVector(const List& list) {
  List::operator=(list);
}

PropertyVector::~PropertyVector() = default;

}  // namespace corvane
