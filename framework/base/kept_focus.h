// Guards for the time of an exchange that a form makes: the control that started it keeps the focus, and its
// action is enabled again. The frames and the screens use them; they know nothing of the exchange itself.
#pragma once

#include <QPointer>

#include "toolkit/action.h"
#include "toolkit/control.h"
#include "toolkit/form.h"

/// Returns the focus at its end to the control that had it: a control that is disabled for a while loses the
/// focus to the next one, and the operator's next key would press that.
class KeptFocus {
 public:
  explicit KeptFocus(TForm* form) : form_(form), control_(form->ActiveControl()) {}
  ~KeptFocus() {
    if (form_ && control_ && form_->ActiveControl() != control_ && control_->CanFocus()) {
      control_->SetFocus();
    }
  }
  KeptFocus(const KeptFocus&) = delete;
  KeptFocus& operator=(const KeptFocus&) = delete;

 private:
  QPointer<TForm> form_;
  QPointer<TWinControl> control_;
};

/// Disables an action of a form during the form's own exchange and enables it afterwards; the control that
/// started the exchange keeps the focus.
class ActionOff {
 public:
  ActionOff(TForm* form, TAction* action) : focus_(form), action_(action) { action_->SetEnabled(false); }
  ~ActionOff() { action_->SetEnabled(true); }
  ActionOff(const ActionOff&) = delete;
  ActionOff& operator=(const ActionOff&) = delete;

 private:
  const KeptFocus focus_;
  TAction* action_;
};
