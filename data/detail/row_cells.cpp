#include "data/detail/row_cells.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

namespace corvane::detail {

Shared<PackedCells> PackedCells::make(const std::vector<std::size_t>& ends, std::string_view bytes) {
  if (bytes.size() > std::numeric_limits<std::uint32_t>::max())
    throw std::length_error("a row of 4 GiB and more");
  const std::size_t table = ends.size() * sizeof(std::uint32_t);
  void* memory = ::operator new(sizeof(PackedCells) + table + bytes.size());
  auto* cells = new (memory) PackedCells(static_cast<std::uint32_t>(ends.size()));
  std::transform(ends.begin(), ends.end(), cells->ends(),
                 [](std::size_t end) { return static_cast<std::uint32_t>(end); });
  if (!bytes.empty()) std::memcpy(cells->ends() + ends.size(), bytes.data(), bytes.size());
  return Shared<PackedCells>(cells);
}

void PackedCells::destroy(const PackedCells* cells) {
  cells->~PackedCells();
  ::operator delete(const_cast<PackedCells*>(cells));
}

std::string_view PackedCells::value(std::uint32_t slot) const {
  const std::uint32_t* const end = ends();
  const std::uint32_t begin = slot == 0 ? 0 : end[slot - 1];
  return {reinterpret_cast<const char*>(end + count_) + begin, end[slot] - begin};
}

RowCells::RowCells(const RowCells& other) : packed_(other.packed()) {}

RowCells& RowCells::operator=(RowCells other) noexcept {
  std::swap(packed_, other.packed_);
  std::swap(opened_, other.opened_);
  return *this;
}

const RowCells::Group* RowCells::groupOf(std::uint32_t slot) const {
  if (!opened_ || slot / kGroup >= opened_->groups.size()) return nullptr;
  return opened_->groups[slot / kGroup].get();
}

std::string_view RowCells::value(std::uint32_t slot) const {
  if (const Group* group = groupOf(slot)) return (*group)[slot % kGroup];
  return packed_ && slot < packed_->count() ? packed_->value(slot) : std::string_view();
}

std::size_t RowCells::bytes() const {
  std::size_t sum = packed_ ? packed_->bytes() : 0;
  if (!opened_) return sum;
  for (const auto& group : opened_->groups)
    if (group)
      for (const std::string& value : *group) sum += value.size();
  return sum;
}

std::string& RowCells::open(std::uint32_t slot) {
  if (const Group* group = groupOf(slot)) return const_cast<Group&>(*group)[slot % kGroup];
  return openGroup(slot / kGroup)[slot % kGroup];
}

RowCells::Group& RowCells::openGroup(std::uint32_t index) {
  if (!opened_) opened_ = std::make_unique<Opened>();
  auto& groups = opened_->groups;
  if (index >= groups.size()) groups.resize(index + 1);
  auto group = std::make_unique<Group>();
  for (std::uint32_t at = 0; at < kGroup; ++at) (*group)[at] = value(index * kGroup + at);
  groups[index] = std::move(group);
  const std::size_t used = packed_ ? (packed_->count() + kGroup - 1) / kGroup : 0;
  if (packed_ && used <= groups.size() &&
      std::all_of(groups.begin(), groups.begin() + static_cast<std::ptrdiff_t>(used),
                  [](const auto& group) { return group != nullptr; }))
    packed_ = {};
  return *groups[index];
}

Shared<PackedCells> RowCells::packed() const {
  if (!opened_) return packed_;
  const auto opened = static_cast<std::uint32_t>(opened_->groups.size()) * kGroup;
  const std::uint32_t slots = std::max(opened, packed_ ? packed_->count() : 0);
  std::string bytes;
  std::vector<std::size_t> ends;
  ends.reserve(slots);
  for (std::uint32_t slot = 0; slot < slots; ++slot) {
    bytes += value(slot);
    ends.push_back(bytes.size());
  }
  return PackedCells::make(ends, bytes);
}

}  // namespace corvane::detail
