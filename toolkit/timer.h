#pragma once

#include "toolkit/component.h"

class QTimer;

/// Runs OnTimer again and again while it is enabled. While Application->ProcessMessages pumps it waits.
class TTimer : public TComponent {
  Q_OBJECT

 public:
  explicit TTimer(TComponent* owner);

  bool Enabled() const { return enabled_; }
  /// Starts or stops; starting begins a whole interval.
  void SetEnabled(bool enabled);
  /// Milliseconds, 1000 at the start; 0 stops the timer.
  int Interval() const { return interval_; }
  void SetInterval(int milliseconds);

  TNotifyEvent OnTimer;

 private:
  void Apply();
  void Tick();

  QTimer* timer_;
  bool enabled_ = false;
  bool late_ = false;
  int interval_ = 1000;
};
