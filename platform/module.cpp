// The modules of platform/host_api.h, where their functions are declared.
#include <dlfcn.h>
#include <link.h>

#include <string>
#include <unordered_map>

#include "platform/handle_table.h"

namespace norvik {
namespace {

class Module : public HandleObject {
 public:
  virtual void* Function(uint32_t ordinal) const = 0;
};

class LoadedModule : public Module {
 public:
  explicit LoadedModule(void* library) : library_(library) {}
  LoadedModule(const LoadedModule&) = delete;
  LoadedModule& operator=(const LoadedModule&) = delete;
  ~LoadedModule() override { dlclose(library_); }

  void* Function(uint32_t ordinal) const override {
    void* const function = dlsym(library_, ("ordinal_" + std::to_string(ordinal)).c_str());
    return IsOwn(function) ? function : nullptr;
  }

 private:
  // dlsym looks into the objects that the library depends on as well. Another host library among them has
  // functions of other shapes under the same ordinals, and calling one would be worse than finding none.
  bool IsOwn(void* function) const {
    link_map* library = nullptr;
    link_map* owner = nullptr;
    Dl_info info;
    return function && dlinfo(library_, RTLD_DI_LINKMAP, &library) == 0 &&
           dladdr1(function, &info, reinterpret_cast<void**>(&owner), RTLD_DL_LINKMAP) != 0 &&
           owner == library;
  }

  void* library_;
};

class RegisteredModule : public Module {
 public:
  RegisteredModule(const norvik_ordinal* table, size_t count) {
    for (size_t i = 0; i < count; ++i) functions_.emplace(table[i].ordinal, table[i].function);
  }

  void* Function(uint32_t ordinal) const override {
    const auto found = functions_.find(ordinal);
    return found == functions_.end() ? nullptr : found->second;
  }

 private:
  std::unordered_map<uint32_t, void*> functions_;
};

}  // namespace
}  // namespace norvik

norvik_handle norvik_module_open(const char* path) {
  if (!path || !*path) return 0;
  void* const library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
  if (!library) return 0;
  try {
    return norvik::PutHandle(std::make_shared<norvik::LoadedModule>(library));
  } catch (const std::exception&) {
    dlclose(library);
    return 0;
  }
}

norvik_handle norvik_module_register(const norvik_ordinal* table, size_t count) {
  if (!table && count > 0) return 0;
  try {
    return norvik::PutHandle(std::make_shared<norvik::RegisteredModule>(table, count));
  } catch (const std::exception&) {
    return 0;
  }
}

void* norvik_module_function(norvik_handle module, uint32_t ordinal) {
  const auto found = norvik::FindHandleOf<norvik::Module>(module);
  try {
    return found ? found->Function(ordinal) : nullptr;
  } catch (const std::exception&) {
    return nullptr;
  }
}

void norvik_module_close(norvik_handle module) {
  norvik::CloseHandleOf<norvik::Module>(module);
}
