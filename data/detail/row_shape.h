// The column names of a row, and the slot of each.
//
// For Row and whoever walks over its columns. Rows of one list share a shape; the values lie in
// data/detail/row_cells.h.
#pragma once

#include <atomic>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "data/detail/shared.h"

namespace corvane::detail {

/// Whether two short texts are the same; names are compared so often that a call for each would show.
inline bool sameText(std::string_view left, std::string_view right) {
  const std::size_t size = left.size();
  if (size != right.size()) return false;
  const auto differ = [&](std::size_t at, auto word) {
    auto other = word;
    std::memcpy(&word, left.data() + at, sizeof word);
    std::memcpy(&other, right.data() + at, sizeof other);
    return word != other;
  };
  if (size >= 8) {
    for (std::size_t at = 0; at + 8 < size; at += 8)
      if (differ(at, std::uint64_t())) return false;
    return !differ(size - 8, std::uint64_t());
  }
  if (size >= 4) return !differ(0, std::uint32_t()) && !differ(size - 4, std::uint32_t());
  for (std::size_t at = 0; at < size; ++at)
    if (left[at] != right[at]) return false;
  return true;
}

/// Which columns a row has, and in which slot of its cells each value lies. Rows of one list share a shape,
/// and so their names. A slot never changes while its column lives; the slot of a removed column serves the
/// next new one. A shape of many columns keeps them in a tree: whatever names a text brings, reading it costs
/// no more than in proportion to its length, but for a logarithm.
class RowShape : public Counted<RowShape> {
 public:
  static constexpr std::uint32_t kNoSlot = 0xFFFFFFFF;
  static constexpr std::uint32_t kManyColumns = 1024;

  RowShape() = default;
  RowShape(const RowShape& other);
  RowShape& operator=(const RowShape&) = delete;
  ~RowShape() = default;

  /// The slot of a column, or kNoSlot.
  std::uint32_t find(std::string_view key) const;
  /// Adds a column that is not there; returns its slot.
  std::uint32_t add(std::string_view key);
  void remove(std::uint32_t slot);

  /// Number of columns, and of slots.
  std::uint32_t columns() const { return slotCount() - static_cast<std::uint32_t>(free_.size()); }
  std::uint32_t slotCount() const { return static_cast<std::uint32_t>(names_.size()); }
  /// The slots in byte order of their columns' names.
  const std::vector<std::uint32_t>& order() const {
    if (stale_.load(std::memory_order_acquire)) refresh();
    return order_;
  }
  const Label& label(std::uint32_t slot) const { return names_[slot]; }
  const std::string& name(std::uint32_t slot) const { return names_[slot].text(); }

  /// The same names; the same names in the same slots.
  bool sameColumns(const RowShape& other) const;
  bool sameSlots(const RowShape& other) const;

 private:
  void enter(std::uint32_t slot);
  void index();
  void refresh() const;
  bool many() const { return !tree_.empty(); }

  std::vector<Label> names_;          // by slot
  std::vector<std::uint32_t> free_;   // slots without a column
  std::vector<std::uint32_t> table_;  // open addressing by hash of the name: slot + 1, 0 for none
  std::map<std::string_view, std::uint32_t> tree_;  // slots by name where there are many; then no table
  mutable std::vector<std::uint32_t> order_;        // slots by name
  mutable std::atomic<bool> stale_{false};          // the tree has changed since order_ was made
};

}  // namespace corvane::detail
