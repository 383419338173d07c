#pragma once

#include "framework/kept_focus.h"
#include "toolkit/action.h"

// An action of a form that is off for the time of its own exchange, and on afterwards; the control that
// started it keeps the focus.
class ActionOff {
 public:
  ActionOff(TForm* form, TAction* action) : focus_(form), m_action(action) { m_action->SetEnabled(false); }
  ~ActionOff() { m_action->SetEnabled(true); }
  ActionOff(const ActionOff&) = delete;
  ActionOff& operator=(const ActionOff&) = delete;

 private:
  const KeptFocus focus_;
  TAction* m_action;
};
