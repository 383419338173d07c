// Advice to the system about large blocks of memory.
//
// For the writer of long texts, which fills megabytes at once. It changes the time that filling takes, and
// nothing else.
#pragma once

#include <cstddef>

#include "platform/export.h"

namespace norvik {

/// Asks the system to back a block that is about to be filled with large pages, which cost a fraction of the
/// page faults. Advice only: nothing else changes, and a block below a few megabytes is left alone.
NORVIK_EXPORT void PreferLargePages(void* memory, std::size_t size);

}  // namespace norvik
