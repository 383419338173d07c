#include "demohost/libraries/libraries.h"

namespace demohost {

const std::array<HostLibrary, 6> kHostLibraries = {{
    {"public information", nullptr, &PublicInformationTable},
    {"translation", "HANDLE_TRANSLATE", &TranslateTable},
    {"errors", "HANDLE_ERROR", &ErrorTable},
    {"print", "HANDLE_PRINT", &PrintTable},
    {"secure communication", "HANDLE_SAFECOM", &SecureCommunicationTable},
    {"spreadsheet", "HANDLE_EXCEL", &SpreadsheetTable},
}};

Libraries::Libraries(Services services, std::optional<MissingFunction> missing) {
  CurrentServices() = std::move(services);
  for (std::size_t library = 0; library < kHostLibraries.size(); ++library) {
    std::vector<norvik_ordinal> table = kHostLibraries[library].table();
    if (missing && missing->library == library) {
      std::erase_if(table, [&](const norvik_ordinal& entry) { return entry.ordinal == missing->ordinal; });
    }
    modules_.push_back(norvik_module_register(table.data(), table.size()));
    if (const char* key = kHostLibraries[library].handleKey) {
      CurrentServices().store->SetHandle(key, modules_.back());
    }
  }
}

Libraries::~Libraries() {
  for (const norvik_handle module : modules_) norvik_module_close(module);
  CurrentServices() = Services();
}

}  // namespace demohost
