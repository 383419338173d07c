#include "platform/window.h"

#include <exception>

#include "platform/handle_table.h"

namespace norvik {
namespace {

class Window : public HandleObject {
 public:
  Window(norvik_window_procedure procedure, void* context, void* widget)
      : procedure_(procedure), context_(context), widget_(widget) {}

  intptr_t Send(uint32_t message, uintptr_t wparam, intptr_t lparam) const {
    return procedure_(context_, message, wparam, lparam);
  }

  void* Widget() const { return widget_; }

 private:
  norvik_window_procedure procedure_;
  void* context_;
  void* widget_;
};

}  // namespace

void* WindowWidget(norvik_handle window) noexcept {
  const auto found = FindHandleOf<Window>(window);
  return found ? found->Widget() : nullptr;
}

bool IsWindow(norvik_handle window) noexcept {
  return FindHandleOf<Window>(window) != nullptr;
}

}  // namespace norvik

norvik_handle norvik_window_register(norvik_window_procedure procedure, void* context, void* widget) {
  if (!procedure) return 0;
  try {
    return norvik::PutHandle(std::make_shared<norvik::Window>(procedure, context, widget));
  } catch (const std::exception&) {
    return 0;
  }
}

intptr_t norvik_window_send(norvik_handle window, uint32_t message, uintptr_t wparam, intptr_t lparam) {
  const auto found = norvik::FindHandleOf<norvik::Window>(window);
  return found ? found->Send(message, wparam, lparam) : 0;
}

void norvik_window_unregister(norvik_handle window) {
  norvik::CloseHandleOf<norvik::Window>(window);
}
