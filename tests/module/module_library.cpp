#include "tests/module/module_library.h"

#include <dlfcn.h>

#include <QApplication>
#include <stdexcept>

namespace {

template <class Function>
Function Find(void* library, const char* name) {
  void* const symbol = dlsym(library, name);
  if (!symbol) throw std::runtime_error(dlerror());
  return reinterpret_cast<Function>(symbol);
}

void* Load(const char* path) {
  void* const library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
  if (!library) throw std::runtime_error(dlerror());
  return library;
}

intptr_t WriteDown(void* context, uint32_t message, uintptr_t, intptr_t) {
  static_cast<WindowedHost*>(context)->messages.push_back(message);
  return 0;
}

}  // namespace

ModuleLibrary::ModuleLibrary(const char* path) : m_library(Load(path)) {
  InitModule = Find<norvik_init_module>(m_library, "InitModule");
  MenuConfig = Find<norvik_menu_config>(m_library, "MenuConfig");
  FreeBuff = Find<norvik_free_buff>(m_library, "FreeBuff");
  CallFunc = Find<norvik_call_func>(m_library, "CallFunc");
  Release = Find<norvik_release>(m_library, "Release");
}

ModuleLibrary::~ModuleLibrary() {
  Release();
  dlclose(m_library);
}

void ModuleLibrary::Pick(const std::string& item) const {
  CallFunc(("<row><ItemName>" + item + "</ItemName></row>").c_str(), 0);
}

std::string ModuleLibrary::Menu() const {
  char* buffer = nullptr;
  MenuConfig(&buffer);
  const std::string text = buffer;
  FreeBuff(buffer);
  return text;
}

WindowedHost::WindowedHost()
    : publicInformation(RegisterAll()), m_window(norvik_window_register(WriteDown, this, &mainWindow)) {
  handles["APPMAINFORMHANDLE"] = m_window;
  SetAnswer(fakehost::Library::kPublicInformation, 68, {"SYSCONFIG_DATA", "APPLICATION.FONT", "Size"},
            fakehost::Text("9"));
}

WindowedHost::~WindowedHost() {
  norvik_window_unregister(m_window);
}

QWidget* WindowOf(const std::string& name) {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (widget->objectName().toStdString() == name) return widget;
  }
  return nullptr;
}
