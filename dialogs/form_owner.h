// The owner of a dialog whose caller may have none. The calls that open dialogs use it, the busy display too;
// it makes nothing itself.
#pragma once

#include "toolkit/application.h"
#include "toolkit/form.h"

/// The form, or the application if it is null: the dialog then opens over the host's main window.
inline TComponent* OwnerOf(TForm* owner) {
  return owner != nullptr ? static_cast<TComponent*>(owner) : Application;
}
