#include "platform/large_memory.h"

#include <sys/mman.h>

#include <cstdint>

namespace norvik {

void PreferLargePages(void* memory, std::size_t size) {
  constexpr std::uintptr_t kLargePage = 2U << 20;
  if (size < 4 * kLargePage) return;
  const auto begin = reinterpret_cast<std::uintptr_t>(memory);
  const std::uintptr_t first = (begin + kLargePage - 1) / kLargePage * kLargePage;
  const std::uintptr_t last = (begin + size) / kLargePage * kLargePage;
  madvise(static_cast<char*>(memory) + (first - begin), last - first, MADV_HUGEPAGE);
}

}  // namespace norvik
