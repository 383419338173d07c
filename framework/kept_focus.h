#pragma once

#include <QPointer>

#include "toolkit/control.h"
#include "toolkit/form.h"

// Gives the focus back at its end to the control that had it: a control that is switched off for a while
// loses the focus to the next one, and the operator's next key would press that.
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
