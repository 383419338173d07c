// How the layer runs the code of an event: in the life of the event's sender, and with its exceptions kept
// from Qt. Controls and forms run their event members through it; it knows neither the application nor what
// an event is about.
#pragma once

#include <utility>

#include "toolkit/component.h"
#include "toolkit/life.h"

/// Runs the body of an event in the life of its sender, unless that has ended. An exception is reported to
/// TLife::HandleException of the served life and never propagates into Qt.
template <class Body>
void RunGuarded(TObject* sender, Body&& body) noexcept {
  TLife* const life = LifeOf(sender);
  if (HasEnded(life)) return;
  const TLifeScope scope(life);
  try {
    std::forward<Body>(body)();
  } catch (const norvik::LifeEnded&) {
    // Qt's frames follow. The frames of the life below them end at their own next check.
  } catch (...) {
    if (TLife* const served = ServedLife()) served->HandleException(sender);
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
