#include "dialogs/busy.h"

#include <QPointer>

#include "dialogs/busy_form.h"
#include "dialogs/form_owner.h"
#include "toolkit/application.h"
#include "toolkit/screen.h"

namespace {

std::string KeyOf(const TForm* owner) {
  return owner != nullptr ? owner->ClassName() : std::string();
}

// The busy form of the served life that is up and passes the test, null if there is none. A form whose owner
// goes dies with it.
template <class Form, class Test>
Form* Find(Test test) {
  for (int i = 0; i < Screen->FormCount(); ++i) {
    auto* form = qobject_cast<Form*>(Screen->Forms(i));
    if (form != nullptr && test(form)) return form;
  }
  return nullptr;
}

TBarForm* BarOf(const std::string& key) {
  return Find<TBarForm>([&](const TBarForm* bar) { return bar->Key() == key; });
}

TWaitForm* Wait() {
  return Find<TWaitForm>([](const TWaitForm*) { return true; });
}

// Messages are pumped here, so the form may have gone with its owner after each step.
void TakeAway(TBusyForm* found) {
  const QPointer<TBusyForm> form(found);
  if (form.isNull() || HasEnded(form->Life())) return;
  form->End();
  DestroyForm(form);
  Application->ProcessMessages();
}

}  // namespace

void ShowBar(TForm* owner) {
  const std::string key = KeyOf(owner);
  TakeAway(BarOf(key));
  CreateForm<TBarForm>(OwnerOf(owner), key)->Begin();
}

void HideBar(TForm* owner) {
  TakeAway(BarOf(KeyOf(owner)));
}

void ShowWait(TForm* owner) {
  TakeAway(Wait());
  CreateForm<TWaitForm>(OwnerOf(owner))->Begin();
}

void HideWait() {
  TakeAway(Wait());
}
