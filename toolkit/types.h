// The words that every class of the layer speaks: enumerations, virtual keys, narrow text and the shapes of
// events. All other headers of the layer include it; it holds no class with behaviour.
#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <string>

/// The root of the layer's classes.
using TObject = QObject;
/// Narrow text: bytes in the process's ANSI code page.
using AnsiString = std::string;

/// Which edge of its parent a control takes.
enum TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient };
/// Where a text is between its left and right edge.
enum TAlignment { taLeftJustify, taRightJustify, taCenter };
/// Where a text is between its upper and lower edge.
enum TTextLayout { tlTop, tlCenter, tlBottom };
/// A button of the mouse.
enum TMouseButton { mbLeft, mbRight, mbMiddle };
/// Which frame a form has: none, one of fixed size, one that the user can resize, a dialog's.
enum TFormBorderStyle { bsNone, bsSingle, bsSizeable, bsDialog };
/// Whether a form stays above the other windows.
enum TFormStyle { fsNormal, fsStayOnTop };
/// Where a form opens.
enum TPosition { poDesigned, poScreenCenter, poMainFormCenter, poOwnerFormCenter };
/// What a control does with the input method.
enum TImeMode { imDisable, imClose, imOpen, imDontCare };
/// Direction of a scroll bar.
enum TScrollBarKind { sbHorizontal, sbVertical };
/// Which scroll bars a control may show.
enum TScrollStyle { ssNone, ssHorizontal, ssVertical, ssBoth };

/// Results of a modal form; 0 while it is open, any other number ends the loop.
enum TModalResult { mrNone = 0, mrOk = 1, mrCancel = 2, mrYes = 6, mrNo = 7 };

/// Keys and buttons that are down while an event happens.
enum TShiftFlag {
  ssShift = 1,
  ssAlt = 2,
  ssCtrl = 4,
  ssLeft = 8,
  ssRight = 16,
  ssMiddle = 32,
  ssDouble = 64
};
/// A set of keys and buttons that are down.
class TShiftState {
 public:
  /// None is down.
  TShiftState() = default;
  /// flags: TShiftFlags joined with |.
  explicit TShiftState(unsigned flags) : flags_(flags) {}
  /// Whether the key or button is down.
  bool Contains(TShiftFlag flag) const { return (flags_ & flag) != 0; }
  /// The same state with one more key or button down.
  TShiftState With(TShiftFlag flag) const { return TShiftState(flags_ | flag); }
  bool operator==(const TShiftState&) const = default;

 private:
  unsigned flags_ = 0;
};

/// Virtual key codes, as the messages of the original platform number them.
enum TVirtualKey : std::uint16_t {
  VK_BACK = 0x08,
  VK_TAB = 0x09,
  VK_RETURN = 0x0D,
  VK_ESCAPE = 0x1B,
  VK_SPACE = 0x20,
  VK_PRIOR = 0x21,
  VK_NEXT = 0x22,
  VK_END = 0x23,
  VK_HOME = 0x24,
  VK_LEFT = 0x25,
  VK_UP = 0x26,
  VK_RIGHT = 0x27,
  VK_DOWN = 0x28,
  VK_DELETE = 0x2E,
  VK_F1 = 0x70
};

/// An event without further arguments.
using TNotifyEvent = std::function<void(TObject* sender)>;
/// A key went down; a handler that sets the key to 0 swallows it.
using TKeyEvent = std::function<void(TObject* sender, std::uint16_t& key, TShiftState shift)>;
/// A character was typed; a handler that sets it to 0 swallows it.
using TKeyPressEvent = std::function<void(TObject* sender, char& key)>;
/// A mouse button went down or up at x, y in pixels from the control's upper left corner.
using TMouseEvent =
    std::function<void(TObject* sender, TMouseButton button, TShiftState shift, int x, int y)>;
