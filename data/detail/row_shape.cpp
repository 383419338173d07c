#include "data/detail/row_shape.h"

#include <algorithm>
#include <cstring>
#include <mutex>

namespace corvane::detail {
namespace {

// A quick mix of length, beginning and end: names of columns are short.
std::size_t hash(std::string_view key) {
  std::uint64_t head = 0;
  std::uint64_t tail = 0;
  const std::size_t size = key.size();
  if (size >= 8) {
    std::memcpy(&head, key.data(), 8);
    std::memcpy(&tail, key.data() + size - 8, 8);
  } else if (size >= 4) {
    std::memcpy(&head, key.data(), 4);
    std::memcpy(&tail, key.data() + size - 4, 4);
  } else {
    for (const char byte : key) head = head << 8 | static_cast<unsigned char>(byte);
  }
  std::uint64_t mixed = (head ^ size) * 0x9E3779B97F4A7C15U;
  mixed = (mixed ^ mixed >> 29 ^ tail) * 0xBF58476D1CE4E5B9U;
  return static_cast<std::size_t>(mixed ^ mixed >> 32);
}

}  // namespace

RowShape::RowShape(const RowShape& other)
    : Counted(other),
      names_(other.names_),
      free_(other.free_),
      table_(other.table_),
      tree_(other.tree_),
      order_(other.order()) {}

std::uint32_t RowShape::find(std::string_view key) const {
  if (many()) {
    const auto found = tree_.find(key);
    return found == tree_.end() ? kNoSlot : found->second;
  }
  if (table_.empty()) return kNoSlot;
  const std::size_t mask = table_.size() - 1;
  for (std::size_t at = hash(key) & mask; table_[at] != 0; at = (at + 1) & mask) {
    const std::uint32_t slot = table_[at] - 1;
    if (sameText(name(slot), key)) return slot;
  }
  return kNoSlot;
}

std::uint32_t RowShape::add(std::string_view key) {
  std::uint32_t slot = slotCount();
  if (free_.empty()) {
    names_.emplace_back(key);
  } else {
    slot = free_.back();
    free_.pop_back();
    names_[slot].assign(key);
  }
  if (many()) {
    tree_.emplace(name(slot), slot);
    stale_ = true;
    return slot;
  }
  const auto before = [this](std::uint32_t left, std::string_view right) { return name(left) < right; };
  order_.insert(std::lower_bound(order_.begin(), order_.end(), key, before), slot);
  if (order_.size() >= kManyColumns) {
    for (const std::uint32_t each : order_) tree_.emplace(name(each), each);
    table_.clear();
  } else if (table_.size() < 2 * order_.size())
    index();
  else
    enter(slot);
  return slot;
}

void RowShape::remove(std::uint32_t slot) {
  if (many()) {
    tree_.erase(name(slot));
    stale_ = true;
  } else {
    order_.erase(std::find(order_.begin(), order_.end(), slot));
  }
  names_[slot].assign({});
  free_.push_back(slot);
  if (!many()) index();
}

bool RowShape::sameColumns(const RowShape& other) const {
  if (this == &other) return true;
  if (columns() != other.columns()) return false;
  const auto sameName = [&](std::uint32_t slot, std::uint32_t theirs) {
    return name(slot) == other.name(theirs);
  };
  return std::equal(order().begin(), order().end(), other.order().begin(), sameName);
}

bool RowShape::sameSlots(const RowShape& other) const {
  return order() == other.order() && slotCount() == other.slotCount() && sameColumns(other);
}

void RowShape::enter(std::uint32_t slot) {
  const std::size_t mask = table_.size() - 1;
  std::size_t at = hash(name(slot)) & mask;
  while (table_[at] != 0) at = (at + 1) & mask;
  table_[at] = slot + 1;
}

// Copies of a shape may be read on different threads.
void RowShape::refresh() const {
  static std::mutex guard;
  const std::lock_guard<std::mutex> lock(guard);
  if (!stale_) return;
  order_.clear();
  for (const auto& [name, slot] : tree_) order_.push_back(slot);
  stale_.store(false, std::memory_order_release);
}

void RowShape::index() {
  std::size_t size = 8;
  while (size < 4 * order().size()) size *= 2;
  table_.assign(size, 0);
  for (const std::uint32_t slot : order()) enter(slot);
}

}  // namespace corvane::detail
