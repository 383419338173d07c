// What Qt's input events say, in the layer's terms. Only the controls use it, where they turn an event of
// their widget into one of their own.
#pragma once

#include <Qt>
#include <cstdint>

#include "toolkit/types.h"

/// Virtual key code of one of Qt's keys, 0 when the original platform has none.
std::uint16_t ToVirtualKey(int key);
/// The mouse button; any but the right and the middle one counts as left.
TMouseButton ToMouseButton(Qt::MouseButton button);
/// The keys and buttons that are down.
TShiftState ToShiftState(Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons);
