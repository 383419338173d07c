// The values of a row: packed in one block, or opened into strings where a reference was given out.
//
// For Row alone, which knows which column lies in which slot (data/detail/row_shape.h). Nothing here knows a
// name.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/detail/shared.h"

namespace corvane::detail {

/// Values in one block of memory, never changed: what a row costs while nobody takes a reference to a value.
class PackedCells : public Counted<PackedCells> {
 public:
  /// `ends` holds for each value the position after it in `bytes`. Throws std::length_error for 4 GiB and
  /// more.
  static Shared<PackedCells> make(const std::vector<std::size_t>& ends, std::string_view bytes);
  static void destroy(const PackedCells* cells);

  std::uint32_t count() const { return count_; }
  std::string_view value(std::uint32_t slot) const;
  std::size_t bytes() const { return count_ == 0 ? 0 : ends()[count_ - 1]; }

 private:
  explicit PackedCells(std::uint32_t count) : count_(count) {}
  std::uint32_t* ends() { return reinterpret_cast<std::uint32_t*>(this + 1); }
  const std::uint32_t* ends() const { return reinterpret_cast<const std::uint32_t*>(this + 1); }

  std::uint32_t count_;
};

/// Values by slot. They lie packed and shared between copies until one is opened for writing; then a group of
/// neighbours becomes strings, whose addresses never change until the cells are cleared or destroyed.
class RowCells {
 public:
  RowCells() = default;
  explicit RowCells(Shared<PackedCells> packed) : packed_(std::move(packed)) {}
  /// A packed copy.
  RowCells(const RowCells& other);
  RowCells(RowCells&& other) noexcept = default;
  RowCells& operator=(RowCells other) noexcept;
  ~RowCells() = default;

  /// The value in a slot; empty for one never written.
  std::string_view value(std::uint32_t slot) const;
  /// The bytes of all values.
  std::size_t bytes() const;
  /// The value as a string for changing, which stays where it is.
  std::string& open(std::uint32_t slot);

 private:
  static constexpr std::uint32_t kGroup = 8;
  using Group = std::array<std::string, kGroup>;
  struct Opened {
    std::vector<std::unique_ptr<Group>> groups;  // by slot / kGroup; null where still packed
  };

  const Group* groupOf(std::uint32_t slot) const;
  Shared<PackedCells> packed() const;
  Group& openGroup(std::uint32_t index);

  Shared<PackedCells> packed_;
  std::unique_ptr<Opened> opened_;
};

}  // namespace corvane::detail
