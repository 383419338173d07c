#include "shell/menu.h"

#include <type_traits>

#include "data/corvane.h"
#include "platform/host_api.h"
#include "repository/norvik_dtl_qry.h"
#include "repository/norvik_e_loan_qry.h"
#include "repository/norvik_qry.h"
#include "toolkit/application.h"
#include "toolkit/form.h"
#include "toolkit/screen.h"

namespace norvik {
namespace {

// Each null until the first pick of its item and again after Release.
TfrmNorvikQry* frmNorvikQry = nullptr;
TfrmNorvikELoanQry* frmNorvikELoanQry = nullptr;
TfrmNorvikDTLQry* frmNorvikDTLQry = nullptr;

template <class Form>
bool BeingMade() {
  for (int i = 0; i < Screen->FormCount(); ++i) {
    if (qobject_cast<Form*>(Screen->Forms(i)) != nullptr) return true;
  }
  return false;
}

template <auto& screen>
void OpenForm(const std::string& item) {
  using Form = std::remove_pointer_t<std::remove_reference_t<decltype(screen)>>;
  if (screen) {
    screen->Show();
    norvik_window_send(screen->Handle(), WM_SYSCOMMAND, SC_RESTORE, 0);
    return;
  }
  // The host may pick the item again while it answers what the screen asks on its way.
  if (BeingMade<Form>()) return;
  Form* const made = CreateForm<Form>(Application);
  screen = made;
  made->m_strItemName = item;
  made->Show();
}

template <auto& screen>
TForm* ScreenOf() {
  return screen;
}

template <auto& screen>
void ForgetScreen(const TApplication* life) {
  if (screen && screen->Life() == life) screen = nullptr;
}

template <auto& screen>
constexpr MenuItem Item(std::string_view item) {
  return {item, OpenForm<screen>, ScreenOf<screen>, ForgetScreen<screen>};
}

constexpr MenuItem kMenu[] = {Item<frmNorvikQry>("ITEM6066"), Item<frmNorvikELoanQry>("ITEM6067"),
                              Item<frmNorvikDTLQry>("ITEM6068")};

}  // namespace

std::span<const MenuItem> Menu() {
  return kMenu;
}

std::string MenuText() {
  corvane::List list;
  corvane::Row row;
  for (const MenuItem& item : kMenu) {
    row["ItemName"] = std::string(item.item);
    list.addRow(row);
  }
  corvane::Iniplus menu;
  menu.addSection("MENU", list);
  return menu.toString();
}

}  // namespace norvik
