#include "data/field.h"

#include <tuple>

#include "data/row.h"

namespace corvane {

Field::Field() = default;

Field::Field(std::string_view name, std::string_view value) : Element(detail::Label(name)), value_(value) {}

Field::~Field() = default;

Field& Field::operator=(Field&& other) noexcept {
  Element::operator=(std::move(other));
  value_ = std::exchange(other.value_, {});
  return *this;
}

void Field::clear() {
  Element::clear();
  setName(std::string_view());
  value_.clear();
}

FieldIterator::reference FieldIterator::column() const {
  const std::uint32_t slot = row_->shape_->order()[at_];
  std::optional<value_type>& pair = pair_.value;
  if (pair && pair->first != row_->shape_->name(slot)) pair.reset();
  if (!pair) {
    pair.emplace(std::piecewise_construct, std::forward_as_tuple(row_->shape_->name(slot)), std::tuple());
    row_->show(slot, pair->second);
  } else if (!row_->holds(slot, pair->second)) {
    pair->second = row_->fieldIn(slot);
  }
  return *pair;
}

}  // namespace corvane
