#pragma once

#include <Qt>
#include <cstdint>

#include "toolkit/types.h"

/// Virtual key code of one of Qt's keys, 0 when the original platform has none.
std::uint16_t ToVirtualKey(int key);
TMouseButton ToMouseButton(Qt::MouseButton button);
TShiftState ToShiftState(Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons);
