#pragma once

#include <cstdint>

namespace demohost::check {

// What this process holds.
struct Footprint {
  std::int64_t heap;   // bytes in use of all that malloc has given out
  std::int64_t files;  // open descriptors
  std::int64_t threads;
  std::int64_t widgets;  // of Qt
};

// Needs a QApplication.
Footprint Measure();

}  // namespace demohost::check
