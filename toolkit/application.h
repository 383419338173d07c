#pragma once

#include <QPointer>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "toolkit/component.h"
#include "toolkit/life.h"

class QWidget;
class TForm;
class TScreen;

/// One life of the layer: owner of its objects from CreateApplication to DestroyApplication; nothing of the
/// layer outlives it. While functions of it stand on the stack it outlives its own end.
class TApplication : public TComponent {
  Q_OBJECT

 public:
  TApplication();
  ~TApplication() override;

  /// Tells the host's main window, whose widget becomes the parent of the forms; 0: none.
  void SetHandle(std::uint32_t handle);
  std::uint32_t Handle() const { return handle_; }
  /// Widget of the host's main window, null when it has none. The forms that it becomes the parent of outlive
  /// it: when the host deletes it they are hidden, the modal ones end as cancelled, and they have no parent
  /// any more.
  QWidget* MainWidget();

  /// Handles pending events once. Timers and queued calls of the layer wait until it is over; a call from
  /// within, or after the end of the life, does nothing. LifeEnded if the life ends meanwhile.
  void ProcessMessages();
  bool Pumping() const { return pumping_; }
  /// Runs a call from the event loop, once, after the running event and when no hold is left; dropped when
  /// the context goes or the life ends.
  void QueueCall(QObject* context, std::function<void()> call);
  /// Keeps queued calls back until as many calls of Unhold have followed.
  void Hold() { ++holds_; }
  void Unhold();
  /// Whether what the user picks has to wait: during an exchange, and while messages are pumped.
  bool Held() const { return holds_ > 0 || pumping_; }

  /// Ends what the user sees of the life: dialogs and menus close as if cancelled, FormDestroy runs for each
  /// form from the last to the first, those of `first` before them, and all windows go. The host may be
  /// called meanwhile; a form whose FormDestroy was under way runs it again if this is called from within it.
  void CloseAll(const std::vector<TForm*>& first);
  /// Ends the life: no event of it runs any more, and its scopes' checks throw.
  void End() { ended_ = true; }
  bool Ended() const { return ended_; }
  /// Whether CloseAll has begun; from then on DestroyForm leaves the form to the application.
  bool Closing() const { return closing_ > 0; }

  /// Reports the exception in flight to OnException, and to the process's log when there is none. Called from
  /// a catch clause; lets nothing out.
  void HandleException(TObject* sender) noexcept;
  /// Reports an exception that reached the layer's edge.
  std::function<void(TObject* sender, std::exception_ptr error)> OnException;
  /// Run when the layer begins to serve this life in place of another, and when it stops: the place where a
  /// module puts its pointers and takes them back.
  std::function<void()> OnEnter;
  std::function<void()> OnLeave;

 private:
  friend class TLifeScope;
  friend void Serve(TApplication* life);
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
  int scopes_ = 0;
  int holds_ = 0;
  int closing_ = 0;
  bool pumping_ = false;
  bool ended_ = false;
};

/// Keeps queued calls of the served life back for as long as it stands.
class THold {
 public:
  THold();
  THold(const THold&) = delete;
  THold& operator=(const THold&) = delete;
  ~THold();

 private:
  TApplication* life_;
};

/// The display that the forms open on.
class TScreen : public TComponent {
  Q_OBJECT

 public:
  TScreen();

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

/// The life that is served, and its screen; null outside a life.
extern TApplication* Application;
extern TScreen* Screen;

/// Begins a life and serves it; does nothing when the newest has not ended. Needs a QApplication of the host.
void CreateApplication();
/// Ends the newest life, as CloseAll and End; deletes it with its forms, at once where no scope of it is
/// open, otherwise with the last of its scopes. Pending deletions of a deleted life are done.
void DestroyApplication();
