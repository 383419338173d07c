#include "dialogs/busy.h"

#include <QPointer>
#include <map>
#include <utility>

#include "dialogs/busy_form.h"
#include "dialogs/form_owner.h"
#include "toolkit/application.h"

namespace {

// The bars that are up, by the class name of the form that each belongs to. A bar whose owner goes dies
// with it.
std::map<std::string, QPointer<TBarForm>> g_bars;
QPointer<TWaitForm> g_wait;

// Messages are pumped here, so the form may have gone with its owner behind each step.
void TakeAway(const QPointer<TBusyForm>& form) {
  if (form.isNull()) return;
  form->End();
  DestroyForm(form);
  Application->ProcessMessages();
}

}  // namespace

void ShowBar(TForm* owner) {
  const std::string key = owner != nullptr ? owner->ClassName() : std::string();
  TakeAway(g_bars[key].data());
  TBarForm* form = CreateForm<TBarForm>(OwnerOf(owner));
  g_bars[key] = form;
  form->Begin();
}

void HideBar(TForm* owner) {
  const auto found = g_bars.find(owner != nullptr ? owner->ClassName() : std::string());
  if (found == g_bars.end()) return;
  const QPointer<TBusyForm> form(found->second.data());
  g_bars.erase(found);
  TakeAway(form);
}

void ShowWait(TForm* owner) {
  TakeAway(g_wait.data());
  g_wait = CreateForm<TWaitForm>(OwnerOf(owner));
  g_wait->Begin();
}

void HideWait() {
  TakeAway(std::exchange(g_wait, nullptr).data());
}
