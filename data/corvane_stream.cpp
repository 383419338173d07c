#include "data/corvane_stream.h"

#include <utility>

#include "data/detail/keys.h"
#include "data/detail/tags.h"
#include "data/exception.h"

namespace corvane {
namespace {

// The attributes of a row whose only attribute is an empty "name", as every row of a list in a stream has it.
const detail::Shared<detail::AttributePart>& emptyName() {
  static const detail::Shared<detail::AttributePart> kPart = [] {
    detail::Shared<detail::AttributePart> made;
    made.edit().map["name"];
    return made;
  }();
  return kPart;
}

}  // namespace

CorvaneStream::CorvaneStream() : Element(detail::tagLabel<detail::kStreamTag>()) {}

CorvaneStream::~CorvaneStream() = default;

CorvaneStream& CorvaneStream::operator=(const CorvaneStream& other) {
  if (this == &other) return *this;
  MapField fields = other.fields_;
  std::vector<Row> rows = other.rows_;
  MapList lists = other.lists_;
  fields_.swap(fields);
  rows_.swap(rows);
  lists_.swap(lists);
  copyAttributes(other);
  return *this;
}

CorvaneStream& CorvaneStream::operator=(CorvaneStream&& other) noexcept {
  if (this == &other) return *this;
  moveAttributes(other, fields_.empty() && rows_.empty() && lists_.empty());
  fields_ = std::exchange(other.fields_, {});
  rows_ = std::exchange(other.rows_, {});
  lists_ = std::exchange(other.lists_, {});
  return *this;
}

void CorvaneStream::clear() {
  settle();
  fields_.clear();
  rows_.clear();
  lists_.clear();
}

void CorvaneStream::addField(const Field& field) {
  fields_.insert_or_assign(field.name(), field);
}

void CorvaneStream::addFields(const Row& row) {
  for (const auto& [key, field] : row) addField(field);
}

std::string CorvaneStream::getValue(std::string_view key) const {
  const auto found = fields_.find(key);
  return found == fields_.end() ? std::string() : found->second.getValue();
}

Field CorvaneStream::getField(std::string_view key) {
  return fields_[std::string(key)];
}

Row CorvaneStream::getFieldsRow() const {
  Row row;
  for (const auto& [key, field] : fields_) row.addField(field);
  return row;
}

void CorvaneStream::addRow(Row& row) {
  row.setName(detail::kRowTag);
  rows_.push_back(row);
}

void CorvaneStream::addRow(Row&& row) {
  row.setName(detail::kRowTag);
  rows_.push_back(std::move(row));
}

Row CorvaneStream::getRow(int index) const {
  if (index < 0 || index >= getRowCount()) throw TException(detail::key::kNoSuchTopRow);
  return rows_[static_cast<std::size_t>(index)];
}

std::string CorvaneStream::prepare(List& list) {
  list.setName(detail::kListTag);
  std::string name = list.getAttribute("name");
  if (name.empty()) throw TException(detail::key::kNamelessList);
  const Row plain;
  for (Row& row : list.rows_) {
    if (row.name() != detail::kRowTag) row.name_ = plain.name_;
    if (row.attributes_)
      row.setAttribute("name", "");
    else
      row.attributes_ = emptyName();
  }
  return name;
}

void CorvaneStream::addList(List& list) {
  lists_[prepare(list)] = list;
}

void CorvaneStream::addList(List&& list) {
  lists_[prepare(list)] = std::move(list);
}

List& CorvaneStream::getList(std::string_view name) {
  const auto found = lists_.find(name);
  return found == lists_.end() ? emptyList_ : found->second;
}

const List& CorvaneStream::getList(std::string_view name) const {
  const auto found = lists_.find(name);
  return found == lists_.end() ? emptyList_ : found->second;
}

}  // namespace corvane
