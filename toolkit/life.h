// Whose code is running. A life of the module lasts from CreateApplication to DestroyApplication, and the
// host may end it, and begin another, while functions of it still stand on the stack: from a timer inside a
// modal loop, from a function of the host that the module is calling. So each entry into the module's code,
// an event or an export, opens a scope for the life that it serves. Inside it the module-wide pointers are
// that life's; an ended life's objects stay until its outermost scope has closed, its events are dropped, and
// its frames end by LifeEnded.
#pragma once

#include <utility>

#include "platform/life_ended.h"
#include "toolkit/types.h"

class TApplication;

/// An entry into the code of a life. Scopes close in the reverse order of their opening.
class TLifeScope {
 public:
  /// What the entry returns to: the event loop, whose frames may still use the widget that had the event, or
  /// the host, which may unload the module.
  enum class Returns { kToQt, kToHost };

  /// Makes the life the one that is served; null: none.
  explicit TLifeScope(TApplication* life, Returns returns = Returns::kToQt);
  TLifeScope(const TLifeScope&) = delete;
  TLifeScope& operator=(const TLifeScope&) = delete;
  /// Serves the life of the scope around it again, or the newest where there is none. The last scope of an
  /// ended life deletes it: at once, or as soon as the event loop runs when it returns to Qt.
  ~TLifeScope();

  /// Throws LifeEnded if the life of the scope has ended.
  void Check() const;

 private:
  TApplication* life_;
  TApplication* previous_;
  Returns returns_;
};

/// The life that was begun last, null when it has ended.
TApplication* NewestLife();
/// The life that an object of the layer belongs to; that which is served for any other object.
TApplication* LifeOf(const TObject* object);
/// Whether a life has ended; null has not.
bool HasEnded(const TApplication* life);
/// Throws LifeEnded if the life that is served has ended. For code that goes on after a call by which the
/// host may have released the module.
void CheckLife();

/// Deletes the ended lives that only wait for the event loop. For a host that is about to unload the module;
/// does nothing while a scope is open.
void DeleteEndedLives();

// For TApplication alone: serves a life, and forgets one that is being deleted.
void Serve(TApplication* life);
void ForgetLife(TApplication* life);

/// Reports the exception in flight to the application's handler.
void ReportInFlight(TObject* sender) noexcept;

/// Runs the body of an event in the life of its sender, unless that has ended; an exception goes to
/// Application->HandleException and never into Qt.
template <class Body>
void RunGuarded(TObject* sender, Body&& body) noexcept {
  TApplication* const life = LifeOf(sender);
  if (HasEnded(life)) return;
  const TLifeScope scope(life);
  try {
    std::forward<Body>(body)();
  } catch (const norvik::LifeEnded&) {
    // Qt's frames follow. The frames of the life below them end at their own next check.
  } catch (...) {
    ReportInFlight(sender);
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
