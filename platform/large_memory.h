// Advice about large blocks of memory.
#pragma once

#include <cstddef>

namespace norvik {

// Asks the system to back a block that is about to be filled with large pages, which cost a fraction of the
// page faults. Advice only: nothing else changes, and a block below a few megabytes is left alone.
void PreferLargePages(void* memory, std::size_t size);

}  // namespace norvik
