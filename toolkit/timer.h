// Time for the layer's objects: a timer that keeps still while messages are pumped inside the program. Forms
// and busy displays use it; delays of one call go through TApplication::QueueCall.
#pragma once

#include "toolkit/component.h"

class QTimer;

/// Runs OnTimer again and again while it is enabled. While Application->ProcessMessages pumps it waits.
class TTimer : public TComponent {
  Q_OBJECT

 public:
  explicit TTimer(TComponent* owner);

  /// Whether the timer runs; false at the start.
  bool Enabled() const { return enabled_; }
  /// Starts or stops; starting begins a full interval.
  void SetEnabled(bool enabled);
  /// Milliseconds, 1000 at the start; 0 stops the timer.
  int Interval() const { return interval_; }
  void SetInterval(int milliseconds);

  /// Runs at the end of each interval.
  TNotifyEvent OnTimer;

 private:
  void Apply();
  void Tick();

  QTimer* timer_;
  bool enabled_ = false;
  bool late_ = false;
  int interval_ = 1000;
};
