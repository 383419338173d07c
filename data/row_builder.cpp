#include "data/row_builder.h"

#include <utility>

namespace corvane {

void RowBuilder::reset(std::string_view name, const AttributeMap& attributes) {
  row_.clear();
  row_.setAttributes(attributes);
  row_.setName(name);
  bytes_.clear();
  ends_.clear();
  general_ = false;
}

void RowBuilder::addField(const Field& field) {
  if (!general_ && !IsNext(field)) Generalize();
  if (general_) {
    row_.addField(field);
    return;
  }
  bytes_ += field.getValue();
  ends_.push_back(bytes_.size());
}

Row RowBuilder::build() {
  Row built = row_;
  if (!general_ && expected_ && ends_.size() == expected_->slotCount()) {
    built.shape_ = expected_;
    built.cells_ = RowCells(PackedCells::make(ends_, bytes_));
    return built;
  }
  if (!general_) {
    Generalize();
    built = row_;
  }
  expected_ = built.shape_;
  return built;
}

bool RowBuilder::IsNext(const Field& field) const {
  const std::size_t slot = ends_.size();
  return expected_ && slot < expected_->slotCount() && !field.hasExtra() &&
         expected_->name(static_cast<std::uint32_t>(slot)) == field.name();
}

void RowBuilder::Generalize() {
  general_ = true;
  std::size_t begin = 0;
  for (std::size_t slot = 0; slot < ends_.size(); ++slot) {
    const std::string_view value = std::string_view(bytes_).substr(begin, ends_[slot] - begin);
    row_.addField(Field(expected_->name(static_cast<std::uint32_t>(slot)), value));
    begin = ends_[slot];
  }
}

}  // namespace corvane
