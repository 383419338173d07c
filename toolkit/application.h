#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <utility>
#include <vector>

#include "toolkit/component.h"

class QWidget;
class TForm;

/// Owner of the layer's objects from CreateApplication to DestroyApplication; nothing of the layer outlives
/// it.
class TApplication : public TComponent {
  Q_OBJECT

 public:
  TApplication();
  ~TApplication() override;

  /// Tells the host's main window, whose widget becomes the parent of the forms; 0: none.
  void SetHandle(std::uint32_t handle);
  std::uint32_t Handle() const { return handle_; }
  /// Widget of the host's main window, null when it has none.
  QWidget* MainWidget() const;

  /// Handles pending events once. Timers and queued calls of the layer wait until it is over; a call from
  /// within does nothing.
  void ProcessMessages();
  bool Pumping() const { return pumping_; }
  /// Runs a call from the event loop, once, after the running event; dropped when the context or the
  /// application goes.
  void QueueCall(QObject* context, std::function<void()> call);

  /// Reports the exception in flight to OnException, and to the process's log when there is none. Called from
  /// a catch clause; lets nothing out.
  void HandleException(TObject* sender) noexcept;
  /// Reports an exception that reached the layer's edge.
  std::function<void(TObject* sender, std::exception_ptr error)> OnException;

 private:
  void PostQueue();
  void RunQueued();

  struct QueuedCall;
  std::vector<QueuedCall> queue_;
  std::uint32_t handle_ = 0;
  bool pumping_ = false;
};

/// The display that the forms open on.
class TScreen : public TComponent {
  Q_OBJECT

 public:
  TScreen() : TComponent(nullptr) {}

  /// Size of the display of the host's main window, pixels.
  int Width() const;
  int Height() const;
  /// All forms, in the order of their creation.
  int FormCount() const { return static_cast<int>(forms_.size()); }
  TForm* Forms(int index) const { return forms_.at(static_cast<std::size_t>(index)); }
  /// The form whose window is active, null when it is none of ours.
  TForm* ActiveForm() const;

 private:
  friend class TForm;
  std::vector<TForm*> forms_;
};

extern TApplication* Application;
extern TScreen* Screen;

/// Makes Application and Screen; does nothing when they exist. Needs a QApplication of the host.
void CreateApplication();
/// Deletes all forms, everything else that Application owns, and both objects; pending deletions are done
/// when it returns.
void DestroyApplication();

/// Runs the body of an event; an exception goes to Application->HandleException and never into Qt.
template <class Body>
void RunGuarded(TObject* sender, Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
  } catch (...) {
    if (Application != nullptr) Application->HandleException(sender);
  }
}

/// Runs an event member inside the guard when it is set. The member may replace itself.
template <class Event, class Sender, class... Arguments>
void FireEvent(const Event& event, Sender* sender, Arguments&&... arguments) noexcept {
  if (!event) return;
  RunGuarded(sender, [&] {
    Event copy = event;
    copy(sender, std::forward<Arguments>(arguments)...);
  });
}
