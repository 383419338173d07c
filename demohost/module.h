// A business module for the client: loaded, started, called and ended through its five exports, with
// failures as ModuleError. Knows only the contract, no class of any module.
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/host_api.h"

namespace demohost {

/// The module can't be loaded, or has failed; what() is ready text in UTF-8.
class ModuleError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A loaded business module and its five exports.
class Module {
 public:
  /// Loads the library. Throws ModuleError where that fails or an export is missing.
  explicit Module(const std::filesystem::path& path);

  /// Starts the module with the handle of the public information library. Throws ModuleError with the keys
  /// that the module failed with.
  void Init(norvik_handle publicInformation);
  /// The names of its menu's items, in narrow text. Throws ModuleError where its menu text can't be read.
  std::vector<std::string> MenuItems();
  /// Opens or brings back an item's screen. Throws ModuleError.
  void Call(const std::string& item);
  /// Ends the module's windows and services; Init may follow. Throws ModuleError.
  void Release();

 private:
  struct Unloader {
    void operator()(void* library) const;
  };
  template <class Function>
  Function Find(const char* name);

  std::unique_ptr<void, Unloader> library_;
  norvik_init_module initModule_;
  norvik_menu_config menuConfig_;
  norvik_free_buff freeBuff_;
  norvik_call_func callFunc_;
  norvik_release release_;
};

}  // namespace demohost
