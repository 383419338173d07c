#pragma once

#include "toolkit/action.h"

// An action that is off for the time of its own exchange, and on afterwards.
class ActionOff {
 public:
  explicit ActionOff(TAction* action) : m_action(action) { m_action->SetEnabled(false); }
  ~ActionOff() { m_action->SetEnabled(true); }
  ActionOff(const ActionOff&) = delete;
  ActionOff& operator=(const ActionOff&) = delete;

 private:
  TAction* m_action;
};
