#include "data/detail/row_builder.h"

#include <utility>

namespace corvane::detail {

void RowBuilder::reset(std::string_view name, const AttributeMap& attributes) {
  row_.clear();
  row_.setAttributes(attributes);
  row_.setName(name);
  bytes_.clear();
  ends_.clear();
  general_ = false;
}

void RowBuilder::addField(const Field& field) {
  if (!field.hasExtra() && expects(field.name())) {
    addExpected(field.getValue());
    return;
  }
  if (!general_) generalize();
  row_.addField(field);
}

bool RowBuilder::expects(std::string_view name) const {
  const auto slot = static_cast<std::uint32_t>(ends_.size());
  return !general_ && expected_ && slot < expected_->slotCount() && sameText(expected_->name(slot), name);
}

void RowBuilder::addExpected(std::string_view value) {
  bytes_ += value;
  ends_.push_back(bytes_.size());
}

const std::string& RowBuilder::lastExpected() const {
  return expected_->name(static_cast<std::uint32_t>(ends_.size() - 1));
}

Row RowBuilder::build() {
  Row built = row_;
  if (!general_ && expected_ && ends_.size() == expected_->slotCount()) {
    built.shape_ = expected_;
    built.cells_ = RowCells(PackedCells::make(ends_, bytes_));
    return built;
  }
  if (!general_) {
    generalize();
    built = row_;
  }
  expected_ = built.shape_;
  return built;
}

void RowBuilder::generalize() {
  general_ = true;
  std::size_t begin = 0;
  for (std::size_t slot = 0; slot < ends_.size(); ++slot) {
    const std::string_view value = std::string_view(bytes_).substr(begin, ends_[slot] - begin);
    row_.addField(Field(expected_->name(static_cast<std::uint32_t>(slot)), value));
    begin = ends_[slot];
  }
}

}  // namespace corvane::detail
