// The module's five exports; platform/host_api.h says how a host calls them.
#include <type_traits>

#include "shell/module.h"

extern "C" {

NORVIK_EXPORT uint32_t InitModule(norvik_handle publicInformationModule) {
  norvik::StartModule(publicInformationModule);
  return 0;
}

NORVIK_EXPORT void MenuConfig(char** buffer) {
  if (buffer) norvik::CopyMenu(buffer);
}

NORVIK_EXPORT int32_t FreeBuff(char* buffer) {
  delete[] buffer;
  return 0;
}

NORVIK_EXPORT void CallFunc(const char* request, uint32_t /*reserved*/) {
  norvik::CallItem(request ? request : "");
}

NORVIK_EXPORT void Release() {
  norvik::StopModule();
}

}  // extern "C"

static_assert(std::is_same_v<decltype(&InitModule), norvik_init_module>);
static_assert(std::is_same_v<decltype(&MenuConfig), norvik_menu_config>);
static_assert(std::is_same_v<decltype(&FreeBuff), norvik_free_buff>);
static_assert(std::is_same_v<decltype(&CallFunc), norvik_call_func>);
static_assert(std::is_same_v<decltype(&Release), norvik_release>);
