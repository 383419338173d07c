#include "platform/ticks.h"

#include <chrono>

namespace norvik {

std::uint32_t TickCount() {
  using std::chrono::duration_cast;
  const auto since = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(duration_cast<std::chrono::milliseconds>(since).count());
}

}  // namespace norvik
