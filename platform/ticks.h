// The system's millisecond counter, which nobody sets.
//
// For clocks and patience in all folders. It measures what has passed; what time it is says
// data/sys_date_time.h.
#pragma once

#include <cstdint>

#include "platform/export.h"

namespace norvik {

/// Milliseconds of a clock that is never set (CLOCK_MONOTONIC), cut to 32 bits: it starts again at 0
/// after 49.7 days.
NORVIK_EXPORT std::uint32_t TickCount();

}  // namespace norvik
