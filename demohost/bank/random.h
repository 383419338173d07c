#pragma once

#include <cstdint>
#include <random>
#include <span>

namespace demohost {

// A source of numbers that gives the same row for the same seed with every standard library (the standard's
// own distributions don't).
class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}

  // 0 to `bound` - 1; `bound` must be above 0.
  std::uint32_t Below(std::uint32_t bound) { return static_cast<std::uint32_t>(engine_() % bound); }
  // True `percent` times in a hundred.
  bool Chance(std::uint32_t percent) { return Below(100) < percent; }
  // One of the items, of which there must be one.
  template <class Range>
  const auto& Pick(const Range& items) {
    return items[Below(static_cast<std::uint32_t>(items.size()))];
  }

 private:
  std::mt19937 engine_;
};

}  // namespace demohost
