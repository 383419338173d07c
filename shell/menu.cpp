#include "shell/menu.h"

#include <QScopedValueRollback>
#include <utility>

#include "data/corvane.h"
#include "platform/host_api.h"
#include "repository/norvik_dtl_qry.h"
#include "repository/norvik_e_loan_qry.h"
#include "repository/norvik_qry.h"
#include "toolkit/application.h"
#include "toolkit/form.h"

namespace norvik {
namespace {

// Each null until the first pick of its item and again after Release.
TfrmNorvikQry* frmNorvikQry = nullptr;
TfrmNorvikELoanQry* frmNorvikELoanQry = nullptr;
TfrmNorvikDTLQry* frmNorvikDTLQry = nullptr;

template <auto& screen>
void OpenForm(const std::string& item) {
  using Screen = std::remove_pointer_t<std::remove_reference_t<decltype(screen)>>;
  // A failure while the screen is made is shown in a nested loop, in which the host may pick the item again.
  static bool making = false;
  if (making) return;
  if (screen) {
    screen->Show();
    norvik_window_send(screen->Handle(), WM_SYSCOMMAND, SC_RESTORE, 0);
    return;
  }
  {
    const QScopedValueRollback made(making, true);
    screen = CreateForm<Screen>(Application);
  }
  screen->m_strItemName = item;
  screen->Show();
}

template <auto& screen>
void DestroyScreen() {
  DestroyForm(std::exchange(screen, nullptr));
}

template <auto& screen>
constexpr MenuItem Item(std::string_view item) {
  return {item, OpenForm<screen>, DestroyScreen<screen>};
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
