#include "demohost/libraries/libraries.h"

namespace demohost {
namespace {

norvik_handle Register(const std::vector<norvik_ordinal>& table) {
  return norvik_module_register(table.data(), table.size());
}

}  // namespace

Libraries::Libraries(Services services) {
  CurrentServices() = std::move(services);
  public_information_ = Register(PublicInformationTable());
  modules_.push_back(public_information_);
  const std::pair<const char*, std::vector<norvik_ordinal>> others[] = {
      {"HANDLE_TRANSLATE", TranslateTable()}, {"HANDLE_ERROR", ErrorTable()},
      {"HANDLE_PRINT", PrintTable()},         {"HANDLE_SAFECOM", SecureCommunicationTable()},
      {"HANDLE_EXCEL", SpreadsheetTable()},
  };
  for (const auto& [key, table] : others) {
    modules_.push_back(Register(table));
    CurrentServices().store->SetHandle(key, modules_.back());
  }
}

Libraries::~Libraries() {
  for (const norvik_handle module : modules_) norvik_module_close(module);
  CurrentServices() = Services();
}

}  // namespace demohost
