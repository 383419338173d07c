#include "tests/module/any_moment.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <algorithm>
#include <iostream>
#include <utility>

namespace anymoment {

using fakehost::Library;

namespace {

// A picture of work that goes on takes no answer.
bool IsBusy(const QWidget* window) {
  return window->objectName() == QLatin1String("TBarForm") ||
         window->objectName() == QLatin1String("TWaitForm");
}

bool IsVisible(const char* screen) {
  const QWidget* window = WindowOf(screen);
  return window && window->isVisible();
}

void Settle() {
  for (int round = 0; round < 3; ++round) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
}

}  // namespace

Scene::Scene(const Moment& moment, Call call) : moment_(moment), call_(call) {
  for (QWidget* window : QApplication::topLevelWidgets()) ownWindows_.insert(window);
  host.during = [this](const fakehost::Call& made) { Reach({.call = &made}); };
  host.duringMessage = [this](std::uint32_t message) { Reach({.message = message}); };
}

QWidget* Scene::Find(const char* name) const {
  QWidget* window = QApplication::activeModalWidget();
  if (!window || IsBusy(window)) window = WindowOf(kItems[at].screen);
  auto* found = window ? window->findChild<QWidget*>(QString::fromLatin1(name)) : nullptr;
  if (!found) throw std::runtime_error(std::string("there is no ") + name);
  return found;
}

void Scene::Click(const char* name) const {
  auto* button = qobject_cast<QAbstractButton*>(Find(name));
  if (!button || !button->isEnabled()) throw std::runtime_error(std::string("no button to press: ") + name);
  button->click();
}

void Scene::Tick(int row) const {
  QAbstractItemModel* model = qobject_cast<QAbstractItemView*>(Find("m_lvMain"))->model();
  model->setData(model->index(row, 0), Qt::Checked, Qt::CheckStateRole);
}

void Scene::ListMenu() const {
  QWidget* viewport = qobject_cast<QAbstractItemView*>(Find("m_lvMain"))->viewport();
  const QPoint middle = viewport->rect().center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, middle, viewport->mapToGlobal(middle));
  QApplication::sendEvent(viewport, &event);
}

void Scene::Choose(const std::string& file) const {
  auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
  dialog->findChild<QLineEdit*>()->setText(QString::fromStdString(file));
  QMetaObject::invokeMethod(dialog, "accept");
}

void Scene::Expect(bool good, const std::string& what) {
  if (good) return;
  ++failures_;
  std::cout << "  " << what << std::endl;
}

void Scene::Guarded(const char* what, const std::function<void()>& body) {
  try {
    body();
  } catch (const corvane::TException&) {
    // A failure of the contract's class is an answer.
  } catch (const std::exception& exception) {
    Expect(false, std::string(what) + " threw " + exception.what());
  } catch (...) {
    Expect(false, std::string(what) + " threw something");
  }
}

std::vector<QWidget*> Scene::ModuleWindows(bool visible) const {
  std::vector<QWidget*> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!ownWindows_.contains(window) && window != host.mainWindow.get() &&
        (!visible || window->isVisible())) {
      windows.push_back(window);
    }
  }
  return windows;
}

// A timer doesn't run inside itself, so each turn is one of its own: a deed that opens a dialog returns late.
void Scene::Turn() {
  auto* next = new QTimer(&turns_);
  next->setSingleShot(true);
  next->callOnTimeout(&turns_, [this, next] {
    next->deleteLater();
    Turn();
    Reach({});
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* dialog = popup ? popup : QApplication::activeModalWidget();
    if (!dialog || IsBusy(dialog)) return;
    if (!came_ && stepsDone_ < moment_.steps.size() &&
        dialog->objectName() == QLatin1String(moment_.steps[stepsDone_].dialog)) {
      const Deed& deed = moment_.steps[stepsDone_++].deed;
      Guarded("the step", [&] { deed(*this); });
      return;
    }
    if (!came_) {
      std::string words = dialog->objectName().toStdString();
      for (const auto* label : dialog->findChildren<QLabel*>()) words += " " + label->text().toStdString();
      Expect(false, "a dialog is in the way: " + words);
    }
    dialog->close();
  });
  next->start(0);
}

void Scene::Reach(const Place& place) {
  if (!acting_ || came_ || stepsDone_ < moment_.steps.size() || !moment_.when(place)) return;
  came_ = true;
  lost_ = EndsLife() && place.call ? 1 : 0;
  Guarded(kCalls[call_], [this] { MakeCall(); });
  if (EndsLife() || call_ == kCloseMainWindow) {
    for (const QWidget* window : ModuleWindows(true)) {
      Expect(false, "a window is left to be seen: " + window->objectName().toStdString());
    }
  }
  callsBefore_ = host.calls.size();
  if (call_ == kPickOther && moment_.doing == Doing::kWaiting) {
    Expect(IsVisible(kItems[Other()].screen), "the picked screen isn't shown at once");
  }
  if (call_ == kPickOther && moment_.doing == Doing::kExchange) {
    Expect(!WindowOf(kItems[Other()].screen), "the picked screen is made during the exchange");
  }
}

void Scene::MakeCall() {
  switch (call_) {
    case kRelease:
      return module.Release();
    case kReleaseAndInit:
      module.Release();
      [[fallthrough]];
    case kInit:
      module.InitModule(host.publicInformation);
      return;
    case kPickSame:
      return module.Pick(kItems[at].item);
    case kPickOther:
      return module.Pick(kItems[Other()].item);
    case kCloseMainWindow:
      return host.CloseMainWindow();
  }
}

int Scene::Play() {
  Turn();
  Guarded("the preparation", [this] { moment_.prepare(*this); });
  acting_ = true;
  Guarded("what it was done in", [this] { moment_.act(*this); });
  for (int round = 0; !came_ && round < 100; ++round) QCoreApplication::processEvents();
  Settle();
  Expect(came_, "the moment doesn't come");
  for (std::size_t i = callsBefore_; EndsLife() && i < host.calls.size(); ++i) {
    const fakehost::Call& made = host.calls[i];
    Expect(failures_ > 0, "a life that has ended calls " + std::to_string(static_cast<int>(made.library)) +
                              "." + std::to_string(made.ordinal) +
                              (made.arguments.empty() ? "" : " " + made.arguments[0]));
  }
  acting_ = false;
  FollowUp();
  return failures_ == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

void Scene::FollowUp() {
  const bool started = moment_.doing != Doing::kStarting && moment_.doing != Doing::kEnding;
  if (call_ == kPickOther && started)
    Expect(IsVisible(kItems[Other()].screen), "the picked screen isn't shown");
  if (call_ == kPickSame && started && moment_.doing != Doing::kClosing) {
    Expect(IsVisible(kItems[at].screen), "the screen isn't shown");
  }
  const bool begun = call_ == kReleaseAndInit || call_ == kInit;
  for (const bool second : {false, true}) {
    if (second || !begun) {
      Guarded("Release", [this] { module.Release(); });
      Settle();
      for (const QWidget* window : ModuleWindows(false)) {
        Expect(false, "a window is left: " + window->objectName().toStdString());
      }
      // The buffer of the function that the life has ended in has nobody left to give it back.
      Expect(host.wronglyReleased == 0 && host.given - host.released <= lost_,
             "a buffer isn't given back once");
      if (!host.mainWindow) host.OpenMainWindow();
      Guarded("InitModule", [this] { module.InitModule(host.publicInformation); });
    }
    host.OfferBills();
    at = 0;
    Guarded("a later query", [this] {
      module.Pick(kItems[at].item);
      Click("m_spdQuery");
      const auto* list = qobject_cast<QAbstractItemView*>(Find("m_lvMain"));
      Expect(list->model()->rowCount() == 2, "a later query brings no rows");
    });
  }
}

}  // namespace anymoment
