#pragma once

#include <QPointer>

#include "toolkit/control.h"
#include "toolkit/form.h"

// Gives the focus back at its end to the control that had it: a control that is switched off for a while
// loses the focus to the next one, and the operator's next key would press that.
class KeptFocus {
 public:
  explicit KeptFocus(TForm* form) : m_form(form), m_control(form->ActiveControl()) {}
  ~KeptFocus() {
    if (m_form && m_control && m_form->ActiveControl() != m_control && m_control->CanFocus()) {
      m_control->SetFocus();
    }
  }
  KeptFocus(const KeptFocus&) = delete;
  KeptFocus& operator=(const KeptFocus&) = delete;

 private:
  QPointer<TForm> m_form;
  QPointer<TWinControl> m_control;
};
