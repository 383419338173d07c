// What an action knows of the controls and menu entries that show it. Only this interface binds the two: an
// action names no control, and a control reaches its action's other clients through nothing.
#pragma once

#include <string>

class TAction;

/// A control or a menu entry that can be bound to an action and shows its values. The action reads a value to
/// see whether the client still bears the former one, and sets it when it does.
class TActionClient {
 public:
  virtual ~TActionClient() = default;

  /// Binds to an action and takes its values, instead of the action before; null unbinds. An action that is
  /// being deleted unbinds its clients.
  virtual void SetAction(TAction* action) = 0;

  /// The client's own text.
  virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  /// The client's own tool tip.
  virtual std::string Hint() const = 0;
  virtual void SetHint(const std::string& hint) = 0;
  /// Whether the client can be clicked.
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  /// Whether the client is to show.
  virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  /// Index of the picture that the client shows, -1: none.
  virtual int ImageIndex() const = 0;
  /// Takes the action's picture; a client without pictures does nothing.
  virtual void TakeImage(const TAction& action) = 0;
  /// Takes the action's check without running a handler; a client without a check does nothing.
  virtual void TakeChecked(bool checked) = 0;
};
