#include "toolkit/events.h"

namespace {

struct KeyCode {
  int qt;
  std::uint16_t code;
};
constexpr KeyCode kKeys[] = {
    {Qt::Key_Backspace, VK_BACK}, {Qt::Key_Tab, VK_TAB},      {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Return, VK_RETURN},  {Qt::Key_Enter, VK_RETURN}, {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Space, VK_SPACE},    {Qt::Key_PageUp, VK_PRIOR}, {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_End, VK_END},        {Qt::Key_Home, VK_HOME},    {Qt::Key_Left, VK_LEFT},
    {Qt::Key_Up, VK_UP},          {Qt::Key_Right, VK_RIGHT},  {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Delete, VK_DELETE},
};

}  // namespace

std::uint16_t ToVirtualKey(int key) {
  for (const KeyCode& known : kKeys) {
    if (known.qt == key) return known.code;
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return static_cast<std::uint16_t>(VK_F1 + key - Qt::Key_F1);
  // Letters and digits have the same numbers on both sides.
  if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z)) {
    return static_cast<std::uint16_t>(key);
  }
  return 0;
}

TMouseButton ToMouseButton(Qt::MouseButton button) {
  if (button == Qt::RightButton) return mbRight;
  return button == Qt::MiddleButton ? mbMiddle : mbLeft;
}

TShiftState ToShiftState(Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons) {
  TShiftState state;
  if (modifiers & Qt::ShiftModifier) state = state.With(ssShift);
  if (modifiers & Qt::AltModifier) state = state.With(ssAlt);
  if (modifiers & Qt::ControlModifier) state = state.With(ssCtrl);
  if (buttons & Qt::LeftButton) state = state.With(ssLeft);
  if (buttons & Qt::RightButton) state = state.With(ssRight);
  if (buttons & Qt::MiddleButton) state = state.With(ssMiddle);
  return state;
}
