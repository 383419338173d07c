#include "toolkit/timer.h"

#include <QTimer>

#include "toolkit/application.h"
#include "toolkit/event_guard.h"

TTimer::TTimer(TComponent* owner) : TComponent(owner), timer_(new QTimer(this)) {
  QObject::connect(timer_, &QTimer::timeout, this, [this] { Tick(); });
}

void TTimer::Tick() {
  if (Application != nullptr && Application->Pumping()) {
    // A queued call waits for the end of the pumping, too; one tick is made up for, however many fell due.
    if (!late_) Application->QueueCall(this, [this] { late_ = false, Tick(); });
    late_ = true;
    return;
  }
  if (enabled_) FireEvent(OnTimer, this);
}

void TTimer::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Apply();
}

void TTimer::SetInterval(int milliseconds) {
  interval_ = milliseconds;
  Apply();
}

void TTimer::Apply() {
  timer_->stop();
  if (enabled_ && interval_ > 0) timer_->start(interval_);
}
