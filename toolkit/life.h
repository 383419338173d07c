// Whose code is running. A life of the module lasts from CreateApplication to DestroyApplication, and the
// host may end it, and begin another, while functions of it are still on the stack: from a timer inside a
// modal loop, from a function of the host that the module is calling. So each entry into the module's code,
// an event or an export, opens a scope for the life that it serves. Inside it the module-wide pointers are
// that life's; an ended life's objects stay until its outermost scope has closed, its events are dropped, and
// its frames end by LifeEnded. What a life owns and does is application.h's matter.
#pragma once

#include "platform/life_ended.h"
#include "toolkit/types.h"

class QWidget;
class TForm;

/// A life as the floors below the application know it. TApplication is the only kind of life.
class TLife {
 public:
  /// Begins a life that is the newest, and serves nothing yet.
  TLife();
  TLife(const TLife&) = delete;
  TLife& operator=(const TLife&) = delete;
  virtual ~TLife();

  /// Ends the life: no event of it runs any more, and its scopes' checks throw.
  void End() { ended_ = true; }
  /// Whether End has been called.
  bool Ended() const { return ended_; }

  /// Widget of the host's main window, null when it has none.
  virtual QWidget* MainWidget() = 0;
  /// Whether the life's forms are being closed; from then on DestroyForm leaves a form to the life.
  virtual bool Closing() const = 0;
  /// A form has been made, or is being deleted. Forms call these in their constructor and destructor.
  virtual void AddForm(TForm* form) = 0;
  virtual void RemoveForm(TForm* form) = 0;
  /// Reports the exception in flight, which a handler of sender threw. Called from a catch clause; throws
  /// nothing.
  virtual void HandleException(TObject* sender) noexcept = 0;

 protected:
  /// The life is served from here on, in place of another.
  virtual void Enter() = 0;
  /// The life stops being served.
  virtual void Leave() = 0;
  /// Deletes the life as soon as the event loop runs.
  virtual void DeleteSoon() = 0;

 private:
  friend class TLifeScope;
  friend void Serve(TLife* life);

  int scopes_ = 0;
  bool ended_ = false;
};

/// An entry into the code of a life. Scopes close in the reverse order of their opening.
class TLifeScope {
 public:
  /// What the entry returns to: the event loop, whose frames may still use the widget that had the event, or
  /// the host, which may unload the module.
  enum class Returns { kToQt, kToHost };

  /// Makes the life the one that is served; null: none.
  explicit TLifeScope(TLife* life, Returns returns = Returns::kToQt);
  TLifeScope(const TLifeScope&) = delete;
  TLifeScope& operator=(const TLifeScope&) = delete;
  /// Serves the life of the scope around it again, or the newest where there is none. The last scope of an
  /// ended life deletes it: at once, or as soon as the event loop runs when it returns to Qt.
  ~TLifeScope();

  /// Throws LifeEnded if the life of the scope has ended.
  void Check() const;

 private:
  TLife* life_;
  TLife* previous_;
  Returns returns_;
};

/// The life that is served, null outside a life. Application is the same as a TApplication.
TLife* ServedLife();
/// The life that was begun last, null when it has ended.
TLife* NewestLife();
/// Whether a life has ended; null has not.
bool HasEnded(const TLife* life);
/// Throws LifeEnded if the life that is served has ended. For code that goes on after a call by which the
/// host may have released the module.
void CheckLife();

/// Deletes the ended lives that only wait for the event loop. For a host that is about to unload the module;
/// does nothing while a scope is open.
void DeleteEndedLives();

/// Serves a life in place of the one that is served; null: none. For scopes, and for the application at its
/// beginning and its deletion.
void Serve(TLife* life);
