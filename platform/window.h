// What the module asks about a window that the host has registered.
//
// For the toolkit, which makes the module's windows children of the host's. Registering a window and sending
// to one is the contract's part and stands in platform/host_api.h.
#pragma once

#include "platform/export.h"
#include "platform/host_api.h"

namespace norvik {

/// The QWidget that was registered with a window; null if there is no such window or it has none.
/// [user-interface thread]
NORVIK_EXPORT void* WindowWidget(norvik_handle window) noexcept;

/// Whether the handle is a window's.
NORVIK_EXPORT bool IsWindow(norvik_handle window) noexcept;

}  // namespace norvik
