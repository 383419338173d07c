// The one table of handles behind platform/host_api.h: numbers for modules, windows, mutexes and bank
// directories.
//
// For the .cpp files of this folder alone, which define the functions of the contract; nothing of it leaves
// the library. An object is held by the table and by whoever is using it.
#pragma once

#include <memory>

#include "platform/host_api.h"

namespace norvik {

/// What a handle stands for: a module, a window, a mutex or a bank directory.
class HandleObject {
 public:
  virtual ~HandleObject() = default;
};

/// Gives the object a handle and keeps it until TakeHandle. 0 for a null object and when memory runs out.
norvik_handle PutHandle(std::shared_ptr<HandleObject> object) noexcept;

/// The object of a handle, null if there is none. The caller's share keeps it alive beyond TakeHandle.
std::shared_ptr<HandleObject> FindHandle(norvik_handle handle) noexcept;

/// Ends a handle and returns what it stood for; null and no change unless it is `object`.
std::shared_ptr<HandleObject> TakeHandle(norvik_handle handle, const HandleObject* object) noexcept;

/// The object of a handle if it is of the kind `T`, else null.
template <class T>
std::shared_ptr<T> FindHandleOf(norvik_handle handle) noexcept {
  return std::dynamic_pointer_cast<T>(FindHandle(handle));
}

/// Ends a handle of the kind `T`; one of another kind stays. The object dies outside of the table's lock.
template <class T>
void CloseHandleOf(norvik_handle handle) noexcept {
  if (const auto object = FindHandleOf<T>(handle)) TakeHandle(handle, object.get());
}

}  // namespace norvik
