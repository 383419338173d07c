// Whom a dialog belongs to.
#pragma once

#include "toolkit/application.h"
#include "toolkit/form.h"

// The form, or the application where there is none: the dialog then opens over the host's main window.
inline TComponent* OwnerOf(TForm* owner) {
  return owner != nullptr ? static_cast<TComponent*>(owner) : Application;
}
