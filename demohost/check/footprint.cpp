#include "demohost/check/footprint.h"

#include <malloc.h>

#include <QApplication>
#include <QPixmapCache>
#include <cstddef>
#include <filesystem>
#include <iterator>

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace demohost::check {
namespace {

std::int64_t HeapInUse() {
#if defined(__SANITIZE_ADDRESS__)
  return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
#else
  const struct mallinfo2 memory = mallinfo2();
  return static_cast<std::int64_t>(memory.uordblks + memory.hblkhd);
#endif
}

std::int64_t EntriesOf(const char* folder) {
  return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

}  // namespace

Footprint Measure() {
  // Pictures that Qt keeps up to a limit of its own are nobody's loss.
  QPixmapCache::clear();
  return {HeapInUse(), EntriesOf("/proc/self/fd"), EntriesOf("/proc/self/task"),
          static_cast<std::int64_t>(QApplication::allWidgets().size())};
}

}  // namespace demohost::check
