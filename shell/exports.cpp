// The module's five exports; platform/host_api.h says how a host calls them.
#include <type_traits>

#include "shell/module.h"

#define NORVIK_ENTRY extern "C" __attribute__((visibility("default")))

NORVIK_ENTRY uint32_t InitModule(norvik_handle publicInformationModule) {
  norvik::StartModule(publicInformationModule);
  return 0;
}

NORVIK_ENTRY void MenuConfig(char** buffer) {
  if (buffer) norvik::CopyMenu(buffer);
}

NORVIK_ENTRY int32_t FreeBuff(char* buffer) {
  delete[] buffer;
  return 0;
}

NORVIK_ENTRY void CallFunc(const char* request, uint32_t /*reserved*/) {
  norvik::CallItem(request ? request : "");
}

NORVIK_ENTRY void Release() {
  norvik::StopModule();
}

static_assert(std::is_same_v<decltype(&InitModule), norvik_init_module>);
static_assert(std::is_same_v<decltype(&MenuConfig), norvik_menu_config>);
static_assert(std::is_same_v<decltype(&FreeBuff), norvik_free_buff>);
static_assert(std::is_same_v<decltype(&CallFunc), norvik_call_func>);
static_assert(std::is_same_v<decltype(&Release), norvik_release>);
