#pragma once

#include "platform/host_api.h"

namespace norvik {

/// The QWidget that was registered with a window; null if there is no such window or it has none.
/// [user-interface thread]
void* WindowWidget(norvik_handle window) noexcept;

/// Whether the handle is a window's.
bool IsWindow(norvik_handle window) noexcept;

}  // namespace norvik
