#include "toolkit/application.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include "platform/host_api.h"
#include "platform/window.h"
#include "toolkit/form.h"

TApplication* Application = nullptr;
TScreen* Screen = nullptr;

struct TApplication::QueuedCall {
  QPointer<QObject> context;
  std::function<void()> call;
};

TApplication::TApplication() : TComponent(nullptr) {}

TApplication::~TApplication() {
  DestroyComponents();
}

void TApplication::SetHandle(std::uint32_t handle) {
  handle_ = handle;
}

QWidget* TApplication::MainWidget() const {
  return static_cast<QWidget*>(norvik::WindowWidget(handle_));
}

void TApplication::ProcessMessages() {
  if (pumping_) return;
  const QPointer<TApplication> self(this);
  pumping_ = true;
  QCoreApplication::processEvents();
  if (!self) return;
  pumping_ = false;
  if (!queue_.empty()) PostQueue();
}

void TApplication::QueueCall(QObject* context, std::function<void()> call) {
  queue_.push_back({context, std::move(call)});
  PostQueue();
}

void TApplication::PostQueue() {
  QMetaObject::invokeMethod(
      this, [this] { RunQueued(); }, Qt::QueuedConnection);
}

void TApplication::RunQueued() {
  if (pumping_) return;
  const QPointer<TApplication> self(this);
  std::vector<QueuedCall> calls;
  calls.swap(queue_);
  for (const QueuedCall& queued : calls) {
    if (queued.context) RunGuarded(queued.context, queued.call);
    if (!self) return;
  }
}

void TApplication::HandleException(TObject* sender) noexcept {
  const std::exception_ptr error = std::current_exception();
  if (error == nullptr) return;
  try {
    if (OnException) {
      OnException(sender, error);
    } else {
      std::rethrow_exception(error);
    }
  } catch (const std::exception& failure) {
    qWarning("%s", failure.what());
  } catch (...) {
    qWarning("an unknown failure reached the edge of the forms");
  }
}

namespace {

const QScreen* MainScreen() {
  const QWidget* main = Application == nullptr ? nullptr : Application->MainWidget();
  return main == nullptr ? QGuiApplication::primaryScreen() : main->screen();
}

}  // namespace

int TScreen::Width() const {
  return MainScreen() == nullptr ? 0 : MainScreen()->geometry().width();
}

int TScreen::Height() const {
  return MainScreen() == nullptr ? 0 : MainScreen()->geometry().height();
}

TForm* TScreen::ActiveForm() const {
  for (TForm* form : forms_) {
    if (form->Active()) return form;
  }
  return nullptr;
}

void CreateApplication() {
  if (Screen == nullptr) Screen = new TScreen;
  if (Application == nullptr) Application = new TApplication;
}

void DestroyApplication() {
  while (Screen != nullptr && Screen->FormCount() > 0) {
    // A form that another one owns is still whole when its owner's FormDestroy runs.
    TForm* form = Screen->Forms(Screen->FormCount() - 1);
    while (auto* owner = dynamic_cast<TForm*>(form->Owner())) form = owner;
    DestroyForm(form);
  }
  delete Application;
  Application = nullptr;
  delete Screen;
  Screen = nullptr;
}
