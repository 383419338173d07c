#include "demohost/window/open_forms.h"

#include <QApplication>
#include <algorithm>

namespace demohost {
namespace {

// A form's class name begins like this; the store's other handles don't.
bool IsFormKey(const std::string& key) {
  return key.size() > 1 && (key[0] == 'T' || key[0] == 't');
}

}  // namespace

void OpenForms::HandleEntered(const std::string& key, norvik_handle value) {
  if (!IsFormKey(key)) return;
  const auto known =
      std::find_if(forms_.begin(), forms_.end(), [&](const Form& form) { return form.className == key; });
  Form form{key, value, known == forms_.end() ? 0 : known->address};
  if (known != forms_.end()) forms_.erase(known);
  if (value != 0) forms_.push_back(form);
}

void OpenForms::Shown(std::uintptr_t form) {
  const auto same =
      std::find_if(forms_.begin(), forms_.end(), [form](const Form& known) { return known.address == form; });
  if (same != forms_.end() || forms_.empty()) return;
  forms_.back().address = form;
}

void OpenForms::Closed(std::uintptr_t form) {
  std::erase_if(forms_, [form](const Form& known) { return known.address == form; });
}

void OpenForms::Activated(std::uintptr_t form) {
  const auto active =
      std::find_if(forms_.begin(), forms_.end(), [form](const Form& known) { return known.address == form; });
  if (active != forms_.end()) std::rotate(active, active + 1, forms_.end());
}

std::vector<OpenForms::Form> OpenForms::Announced() const {
  std::vector<Form> announced;
  std::copy_if(forms_.begin(), forms_.end(), std::back_inserter(announced),
               [](const Form& form) { return form.address != 0; });
  return announced;
}

QWidget* OpenForms::WindowOf(const Form& form) {
  const QString name = QString::fromStdString(form.className);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == name && window->isVisible()) return window;
  }
  return nullptr;
}

QWidget* OpenForms::Front() const {
  for (auto form = forms_.rbegin(); form != forms_.rend(); ++form) {
    if (QWidget* window = WindowOf(*form)) return window;
  }
  return nullptr;
}

}  // namespace demohost
