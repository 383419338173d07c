#include "demohost/module.h"

#include <dlfcn.h>

#include "data/corvane.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

// Runs a call into the module; its exceptions come out as ModuleError with their keys as lines.
template <class Body>
auto Guarded(Body&& body) {
  try {
    return body();
  } catch (const corvane::TException& exception) {
    throw ModuleError(norvik::Utf8FromAnsi(exception.getMessage("\r\n")));
  }
}

}  // namespace

void Module::Unloader::operator()(void* library) const {
  dlclose(library);
}

Module::Module(const std::filesystem::path& path) : library_(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
  if (library_ == nullptr) throw ModuleError(dlerror());
  initModule_ = Find<norvik_init_module>("InitModule");
  menuConfig_ = Find<norvik_menu_config>("MenuConfig");
  freeBuff_ = Find<norvik_free_buff>("FreeBuff");
  callFunc_ = Find<norvik_call_func>("CallFunc");
  release_ = Find<norvik_release>("Release");
}

template <class Function>
Function Module::Find(const char* name) {
  void* symbol = dlsym(library_.get(), name);
  if (symbol == nullptr) throw ModuleError(std::string("no export ") + name);
  return reinterpret_cast<Function>(symbol);
}

void Module::Init(norvik_handle publicInformation) {
  Guarded([&] { return initModule_(publicInformation); });
}

std::vector<std::string> Module::MenuItems() {
  return Guarded([&] {
    char* buffer = nullptr;
    menuConfig_(&buffer);
    const std::string text = buffer == nullptr ? std::string() : std::string(buffer);
    freeBuff_(buffer);
    std::vector<std::string> items;
    const corvane::List rows = corvane::Iniplus(text).getSection("MENU");
    for (const corvane::Row& row : rows) items.push_back(row.getValue("ItemName"));
    return items;
  });
}

void Module::Call(const std::string& item) {
  corvane::Row request;
  request["ItemName"] = item;
  const std::string text = request.toString();
  Guarded([&] { callFunc_(text.c_str(), 0); });
}

void Module::Release() {
  Guarded([&] { release_(); });
}

}  // namespace demohost
