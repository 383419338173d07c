// Runs NorvikQry in the host of minimal_host.c: minimal_host [<path of NorvikQry.so> [<menu item>]].
#include <dlfcn.h>

#include <QApplication>
#include <cstdio>
#include <string>

#include "data/corvane.h"
#include "docs/minimal_host.h"

namespace {

template <typename Function>
Function Export(void* module, const char* name) {
  return reinterpret_cast<Function>(dlsym(module, name));
}

int Run(void* module, const std::string& item) {
  const auto initModule = Export<norvik_init_module>(module, "InitModule");
  const auto menuConfig = Export<norvik_menu_config>(module, "MenuConfig");
  const auto freeBuff = Export<norvik_free_buff>(module, "FreeBuff");
  const auto callFunc = Export<norvik_call_func>(module, "CallFunc");
  const auto release = Export<norvik_release>(module, "Release");
  int status = 0;
  try {
    initModule(minimal_host_open(nullptr));
    char* menu = nullptr;
    menuConfig(&menu);
    std::puts(menu);
    freeBuff(menu);
    callFunc(("<row><ItemName>" + item + "</ItemName></row>").c_str(), 0);
    status = QApplication::exec();
  } catch (const corvane::TException& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    status = 1;
  }
  release();
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  void* const module = dlopen(argc > 1 ? argv[1] : "./NorvikQry.so", RTLD_NOW | RTLD_LOCAL);
  if (!module) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  const int status = Run(module, argc > 2 ? argv[2] : "ITEM6066");
  dlclose(module);
  return status;
}
