#pragma once

#include <QString>
#include <QWidget>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/host_api.h"

namespace demohost {

// The module's forms as the host sees them: the handle that a form enters under its class name, and the
// messages that tell of forms shown, closed and activated. A window is found by its object name, which is the
// class name.
class OpenForms {
 public:
  struct Form {
    std::string className;
    norvik_handle handle = 0;
    std::uintptr_t address = 0;  // 0 until the form has been announced
  };

  // A handle entered in the store, 0 where the form was closed. Entries that aren't forms are left alone.
  void HandleEntered(const std::string& key, norvik_handle value);

  // Messages 0x824, 0x825 and 0x826. A form that was shown is the one that entered its handle last.
  void Shown(std::uintptr_t form);
  void Closed(std::uintptr_t form);
  void Activated(std::uintptr_t form);

  // The announced forms, the one that was in front last at the end.
  std::vector<Form> Announced() const;
  // Every form that has a handle, dialogs included.
  const std::vector<Form>& All() const { return forms_; }

  // The visible window of a form, or null.
  static QWidget* WindowOf(const Form& form);
  // The window that is in front among the module's, or null.
  QWidget* Front() const;

 private:
  std::vector<Form> forms_;
};

}  // namespace demohost
