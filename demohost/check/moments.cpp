#include "demohost/check/moments.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <optional>

#include "demohost/libraries/support.h"

namespace demohost::check {
namespace {

// A button pumps the event loop a few times; where it pumps it more often, the turns are alike.
constexpr int kMaxTurns = 4;

PlaceKind KindOf(const std::string& place) {
  if (place.starts_with("turn ")) return PlaceKind::kTimer;
  return place.starts_with("the dialog") || place.starts_with("the menu") ? PlaceKind::kDialog
                                                                          : PlaceKind::kFunction;
}

// A function that takes a buffer back. A buffer may come back after the end of the module: that of the
// function in which the call ended it.
bool TakesBack(const std::string& place) {
  return place.starts_with("function 3 of ") || place == "function 4 of secure communication";
}

// The window that keeps the operator waiting, null if there is none. A modal one without a button is a
// picture of work in progress.
QWidget* WaitingWindow() {
  if (QWidget* menu = QApplication::activePopupWidget()) return menu;
  QWidget* modal = QApplication::activeModalWidget();
  return modal == nullptr || modal->findChild<QAbstractButton*>() == nullptr ? nullptr : modal;
}

}  // namespace

Moments::Moments(CaseRun& run, Subject& subject, std::string item)
    : run_(run), subject_(subject), item_(std::move(item)) {
  run_.ExpectDialogs();
  Turn();
  for (const std::string& each : subject_.Items()) {
    subject_.Start();
    subject_.Pick(each);
    for (const QWidget* window : run_.Host().ShownWindows()) {
      windows_[each] = window->objectName().toStdString();
    }
    subject_.End();
    if (each != item_) other_ = each;
  }
}

QWidget* Moments::ShownWindow(const std::string& item) const {
  const auto name = windows_.find(item);
  for (QWidget* window : run_.Host().ShownWindows()) {
    if (name != windows_.end() && window->objectName().toStdString() == name->second) return window;
  }
  return nullptr;
}

std::string Moments::PlaceNow() {
  const QWidget* waiting = WaitingWindow();
  if (waiting != nullptr) {
    return (waiting == QApplication::activePopupWidget() ? "the menu " : "the dialog ") +
           waiting->objectName().toStdString();
  }
  if (!acting_ || turn_ == kMaxTurns) return {};
  return "turn " + std::to_string(++turn_) + " of the event loop";
}

// A timer doesn't run inside itself, so each turn is one of its own: a call that opens a window returns late.
void Moments::Turn() {
  auto* next = new QTimer(&turns_);
  next->setSingleShot(true);
  next->callOnTimeout(&turns_, [this, next] {
    next->deleteLater();
    Turn();
    if (const std::string place = PlaceNow(); reach_ && !place.empty()) reach_(place);
    if (QWidget* waiting = WaitingWindow()) waiting->close();
  });
  next->start(0);
}

void Moments::Perform(const Scene& scene, const std::function<void(const std::string&)>& reach) {
  scene.prepare();
  run_.Step(scene.what + where_);
  run_.Host().during = reach;
  reach_ = reach;
  turn_ = 0;
  acting_ = true;
  const CallEnd end = scene.act();
  acting_ = false;
  run_.Expect(end.kind != CallEnd::kForeign, scene.what + where_ + ": " + end.words);
  Settle();
  run_.Host().during = nullptr;
  reach_ = nullptr;
  // Closes what still waits, as an operator would.
  for (int round = 0; round < 100 && WaitingWindow() != nullptr; ++round) Settle();
}

void Moments::Play(const Scene& scene, PlaceKind kind, std::set<std::string>* places) {
  std::vector<std::string> found;
  where_.clear();
  const std::size_t buffers = OutstandingBuffers();
  Perform(scene, [&](const std::string& place) {
    if (std::find(found.begin(), found.end(), place) == found.end()) found.push_back(place);
  });
  subject_.End(buffers);
  if (places != nullptr) places->insert(found.begin(), found.end());
  for (const std::string& place : found) {
    if (KindOf(place) != kind) continue;
    // The same function or dialog is one place wherever it comes up; a turn of the event loop is not.
    if (!done_.insert(kind == PlaceKind::kTimer ? scene.what + place : place).second) continue;
    for (std::size_t call = 0; call < std::size(kCallNames); ++call) {
      if (!other_.empty() || static_cast<Call>(call) != Call::kPickOther) {
        Round(scene, place, static_cast<Call>(call));
      }
    }
  }
}

void Moments::Round(const Scene& scene, const std::string& place, Call call) {
  const bool ends = call <= Call::kStart;
  const std::size_t buffers = OutstandingBuffers();
  where_ = std::string(" with ") + kCallNames[static_cast<std::size_t>(call)] + " in " + place;
  bool came = false;
  bool making = false;
  std::optional<std::string> late;
  Perform(scene, [&](const std::string& here) {
    if (came) {
      // What the call does itself is its own.
      if (ends && !making && !late && KindOf(here) == PlaceKind::kFunction && !TakesBack(here)) late = here;
      return;
    }
    if (here != place) return;
    came = true;
    making = true;
    Make(call);
    making = false;
    ExpectAtOnce(place, call);
  });
  run_.Expect(!late, scene.what + where_ + ": what was ended called " + late.value_or(""));
  if (came && scene.opens && call == Call::kPickOther) {
    run_.Expect(ShownWindow(other_) != nullptr, scene.what + where_ + ": the picked item isn't shown");
  }
  subject_.End(buffers + (came && ends && KindOf(place) == PlaceKind::kFunction ? 1 : 0));
  run_.Host().OpenWindow();
}

void Moments::Make(Call call) {
  CallEnd end;
  const auto start = [this, &end] { end = subject_.Init(run_.Host().PublicInformation(), where_); };
  switch (call) {
    case Call::kRelease:
      end = subject_.Release(where_);
      break;
    case Call::kReleaseAndStart:
      end = subject_.Release(where_);
      if (end.kind == CallEnd::kReturned) start();
      break;
    case Call::kStart:
      start();
      break;
    case Call::kPickSame:
    case Call::kPickOther:
      end = subject_.Call(RequestFor(call == Call::kPickOther ? other_ : item_), where_);
      break;
    case Call::kCloseWindow:
      run_.Step("destroying the main window" + where_);
      run_.Host().CloseWindow();
      break;
  }
  run_.Expect(end.kind != CallEnd::kForeign, "a call" + where_ + ": " + end.words);
}

void Moments::ExpectAtOnce(const std::string& place, Call call) {
  if (call <= Call::kStart) {
    for (const QWidget* window : run_.Host().ShownWindows()) {
      run_.Fail("a window \"" + window->objectName().toStdString() + "\" is open" + where_);
    }
  }
  if (call != Call::kPickOther) return;
  if (KindOf(place) == PlaceKind::kDialog) {
    run_.Expect(ShownWindow(other_) != nullptr, "the picked item isn't shown at once" + where_);
  }
  if (place == kExchange) {
    run_.Expect(ShownWindow(other_) == nullptr, "the picked item is shown during the exchange" + where_);
  }
}

}  // namespace demohost::check
