#include "data/row.h"

#include "data/detail/keys.h"
#include "data/detail/tags.h"
#include "data/exception.h"

namespace corvane {

using detail::RowShape;

Row::Row() : Element(detail::tagLabel<detail::kRowTag>()) {}

Row::Row(const detail::Label& tag) : Element(tag) {}

Row::Row(const Row&) = default;

Row::~Row() = default;

Row& Row::operator=(const Row& other) {
  if (this != &other) copyContent(other);
  return *this;
}

Row& Row::operator=(Row&& other) noexcept {
  if (this == &other) return *this;
  moveAttributes(other, !shape_);
  shape_ = std::move(other.shape_);
  cells_ = std::move(other.cells_);
  extras_ = std::move(other.extras_);
  return *this;
}

std::string& Row::operator[](std::string_view key) {
  if (key.empty()) throw TException(detail::key::kEmptyColumnName);
  const std::uint32_t slot = find(key);
  return cells_.open(slot == RowShape::kNoSlot ? add(key) : slot);
}

std::string Row::getValue(std::string_view key) const {
  const std::uint32_t slot = find(key);
  return slot == RowShape::kNoSlot ? std::string() : std::string(cells_.value(slot));
}

void Row::addField(const Field& field) {
  const Field source = field;  // the field may be made of this row's own parts
  std::uint32_t slot = find(source.name());
  if (slot == RowShape::kNoSlot) slot = add(source.name());
  cells_.open(slot) = source.value_;
  if (source.hasExtra())
    extras_.edit().bySlot[slot] = {source.attributes_, source.encoding_};
  else if (extras_)
    extras_.edit().bySlot.erase(slot);
}

Field Row::getField(std::string_view key) const {
  const std::uint32_t slot = find(key);
  return slot == RowShape::kNoSlot ? Field() : fieldIn(slot);
}

bool Row::hasField(std::string_view key) const {
  return find(key) != RowShape::kNoSlot;
}

int Row::countField(std::string_view key) const {
  return hasField(key) ? 1 : 0;
}

bool Row::containsField(const Field& field) const {
  const std::uint32_t slot = find(field.name());
  return slot != RowShape::kNoSlot && cells_.value(slot) == field.value_;
}

void Row::removeField(std::string_view key) {
  const std::uint32_t slot = find(key);
  if (slot == RowShape::kNoSlot) return;
  shape_.edit().remove(slot);
  if (extras_) extras_.edit().bySlot.erase(slot);
}

FieldIterator Row::begin() const {
  return {this, 0};
}

FieldIterator Row::end() const {
  return {this, size()};
}

bool Row::sameColumns(const Row& other) const {
  if (shape_.get() == other.shape_.get()) return true;
  if (shape_ && other.shape_) return shape_->sameColumns(*other.shape_);
  return size() == other.size();
}

void Row::clear() {
  Element::clear();
  shape_ = {};
  cells_ = {};
  extras_ = {};
}

void Row::copyContent(const Row& other) {
  copyAttributes(other);
  shape_ = other.shape_;
  cells_ = other.cells_;
  extras_ = other.extras_;
}

std::uint32_t Row::find(std::string_view key) const {
  return shape_ ? shape_->find(key) : RowShape::kNoSlot;
}

std::uint32_t Row::add(std::string_view key) {
  const std::uint32_t before = shape_ ? shape_->slotCount() : 0;
  const std::uint32_t slot = shape_.edit().add(key);
  if (slot < before) cells_.open(slot).clear();  // what a removed column left
  return slot;
}

Field Row::fieldIn(std::uint32_t slot) const {
  Field field;
  show(slot, field);
  return field;
}

void Row::show(std::uint32_t slot, Field& field) const {
  field.name_ = shape_->label(slot);
  field.value_ = cells_.value(slot);
  if (const FieldExtra* extra = extraOf(slot)) {
    field.attributes_ = extra->attributes;
    field.encoding_ = extra->encoding;
  }
}

bool Row::holds(std::uint32_t slot, const Field& field) const {
  if (!field.name_.sharedWith(shape_->label(slot)) || field.value_ != cells_.value(slot)) return false;
  const FieldExtra* extra = extraOf(slot);
  if (!extra) return !field.hasExtra();
  return field.attributes_.get() == extra->attributes.get() && field.encoding_.sharedWith(extra->encoding);
}

const Row::FieldExtra* Row::extraOf(std::uint32_t slot) const {
  if (!extras_) return nullptr;
  const auto extra = extras_->bySlot.find(slot);
  return extra == extras_->bySlot.end() ? nullptr : &extra->second;
}

Property::Property() : Row(detail::tagLabel<detail::kPropertyTag>()) {}

Property::Property(const Row& row) : Row(detail::tagLabel<detail::kPropertyTag>()) {
  copyContent(row);
}

// NOLINTNEXTLINE(bugprone-copy-constructor-init): tag and encoding of a copy are a plain row's
Property::Property(const Property& other) : Row() {
  copyContent(other);
}

Property::~Property() = default;

}  // namespace corvane
