// The system's millisecond counter.
#pragma once

#include <cstdint>

namespace norvik {

// Milliseconds of a clock that is never set (CLOCK_MONOTONIC), cut to 32 bits: it starts again at 0
// after 49.7 days.
std::uint32_t TickCount();

}  // namespace norvik
