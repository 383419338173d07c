// The layer's ground: the object that owns all others from the host's first call to its last, the queue of
// calls that wait for the event loop, and the hold during an exchange. For the module's entry and for whoever
// pumps messages or queues a call. Events are run by event_guard.h; the forms are listed by screen.h.
#pragma once

#include <QPointer>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "toolkit/component.h"
#include "toolkit/life.h"

class TScreen;

/// One life of the layer: owner of its objects from CreateApplication to DestroyApplication; nothing of the
/// layer outlives it. While functions of it are on the stack it outlives its own end. Title, icon, help and
/// the message loop of the original's application are the host's and not there.
class TApplication : public TComponent, public TLife {
  Q_OBJECT

 public:
  TApplication();
  ~TApplication() override;

  /// Sets the host's main window, whose widget becomes the parent of the forms; 0: none.
  void SetHandle(std::uint32_t handle);
  /// Handle of the host's main window, 0: none.
  std::uint32_t Handle() const { return handle_; }
  /// Widget of the host's main window, null when it has none. The forms that it becomes the parent of outlive
  /// it: when the host deletes it they are hidden, the modal ones end as cancelled, and they have no parent
  /// any more.
  QWidget* MainWidget() override;

  /// Handles pending events once. Timers and queued calls of the layer wait until it is over; a call from
  /// within, or after the end of the life, does nothing. LifeEnded if the life ends meanwhile.
  void ProcessMessages();
  /// Whether ProcessMessages is running.
  bool Pumping() const { return pumping_; }
  /// Runs a call from the event loop, once, after the running event and when no hold is left; dropped when
  /// the context goes or the life ends.
  void QueueCall(QObject* context, std::function<void()> call);
  /// Keeps queued calls back until as many calls of Unhold have followed.
  void Hold() { ++holds_; }
  /// Ends one Hold; the queued calls run from the event loop after the last.
  void Unhold();
  /// Whether what the user picks has to wait: during an exchange, and while messages are pumped.
  bool Held() const { return holds_ > 0 || pumping_; }

  /// Ends what the user sees of the life: dialogs and menus close as if cancelled, FormDestroy runs for each
  /// form from the last to the first, those of `first` before them, and all windows go. The host may be
  /// called meanwhile; a form whose FormDestroy was under way runs it again if this is called from within it.
  void CloseAll(const std::vector<TForm*>& first);
  /// Whether CloseAll has begun; from then on DestroyForm leaves the form to the application.
  bool Closing() const override { return closing_ > 0; }
  void AddForm(TForm* form) override;
  void RemoveForm(TForm* form) override;

  /// Reports the exception in flight to OnException, and to the process's log when there is none. Called from
  /// a catch clause; throws nothing.
  void HandleException(TObject* sender) noexcept override;
  /// Reports an exception that reached the layer's edge.
  std::function<void(TObject* sender, std::exception_ptr error)> OnException;
  /// Runs when the layer begins to serve this life in place of another: a module sets its pointers in it.
  std::function<void()> OnEnter;
  /// Runs when the layer stops serving this life: a module takes its pointers back in it.
  std::function<void()> OnLeave;

 protected:
  void Enter() override;
  void Leave() override;
  void DeleteSoon() override { deleteLater(); }

 private:
  void PostQueue();
  void RunQueued();
  std::vector<QPointer<TForm>> FormsNewestFirst() const;
  void LoseMainWidget();
  void Unanchor();

  struct QueuedCall;
  std::vector<QueuedCall> queue_;
  std::unique_ptr<TScreen> screen_;
  QPointer<QObject> anchor_;
  std::uint32_t handle_ = 0;
  int holds_ = 0;
  int closing_ = 0;
  bool pumping_ = false;
};

/// Keeps queued calls of the served life back up to the end of its block.
class THold {
 public:
  THold();
  THold(const THold&) = delete;
  THold& operator=(const THold&) = delete;
  ~THold();

 private:
  TApplication* life_;
};

/// The life that is served, null outside a life.
extern TApplication* Application;
/// The life that was begun last, null when it has ended: NewestLife as an application.
TApplication* NewestApplication();

/// Begins a life and serves it; does nothing when the newest has not ended. Needs a QApplication of the host.
void CreateApplication();
/// Ends the newest life, as CloseAll and End; deletes it with its forms, at once where no scope of it is
/// open, otherwise with the last of its scopes. Pending deletions of a deleted life are done.
void DestroyApplication();
