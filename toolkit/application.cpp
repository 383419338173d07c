#include "toolkit/application.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

#include "platform/host_api.h"
#include "platform/window.h"
#include "toolkit/event_guard.h"
#include "toolkit/form.h"
#include "toolkit/screen.h"

TApplication* Application = nullptr;

struct TApplication::QueuedCall {
  QPointer<QObject> context;
  std::function<void()> call;
};

namespace {

// A child of the host's main window, older than the forms' windows there: it is deleted before them, and they
// can be taken out in time.
class Anchor : public QObject {
 public:
  Anchor(QObject* main, std::function<void()> gone) : QObject(main), gone_(std::move(gone)) {}
  ~Anchor() override {
    // Deleted by its owner it is no child any more.
    if (parent() != nullptr) gone_();
  }

 private:
  std::function<void()> gone_;
};

}  // namespace

TApplication::TApplication() : TComponent(nullptr, this), screen_(std::make_unique<TScreen>()) {}

TApplication::~TApplication() {
  // What is deleted finds the pointers of its own life.
  TApplication* const served = Application == this ? nullptr : Application;
  Serve(this);
  while (screen_->FormCount() > 0) {
    TForm* form = screen_->Forms(screen_->FormCount() - 1);
    while (auto* owner = dynamic_cast<TForm*>(form->Owner())) form = owner;
    delete form;
  }
  DestroyComponents();
  Unanchor();
  OnLeave = nullptr;
  Serve(served);
}

void TApplication::Enter() {
  Application = this;
  Screen = screen_.get();
  if (OnEnter) OnEnter();
}

void TApplication::Leave() {
  if (OnLeave) OnLeave();
  Application = nullptr;
  Screen = nullptr;
}

void TApplication::AddForm(TForm* form) {
  screen_->Add(form);
}

void TApplication::RemoveForm(TForm* form) {
  screen_->Remove(form);
}

void TApplication::SetHandle(std::uint32_t handle) {
  handle_ = handle;
}

QWidget* TApplication::MainWidget() {
  auto* main = static_cast<QWidget*>(norvik::WindowWidget(handle_));
  if (main != nullptr && (!anchor_ || anchor_->parent() != main)) {
    Unanchor();
    anchor_ = new Anchor(main, [this] { LoseMainWidget(); });
  }
  return main;
}

void TApplication::Unanchor() {
  if (!anchor_) return;
  anchor_->setParent(nullptr);
  delete anchor_.data();
}

void TApplication::LoseMainWidget() {
  const TLifeScope scope(this);
  for (const QPointer<TForm>& form : FormsNewestFirst()) {
    if (form) form->LoseParent();
  }
}

void TApplication::ProcessMessages() {
  if (pumping_ || Ended()) return;
  const TLifeScope scope(this);
  pumping_ = true;
  QCoreApplication::processEvents();
  pumping_ = false;
  scope.Check();
  if (!queue_.empty()) PostQueue();
}

void TApplication::QueueCall(QObject* context, std::function<void()> call) {
  queue_.push_back({context, std::move(call)});
  PostQueue();
}

void TApplication::Unhold() {
  --holds_;
  if (!queue_.empty()) PostQueue();
}

void TApplication::PostQueue() {
  QMetaObject::invokeMethod(
      this, [this] { RunQueued(); }, Qt::QueuedConnection);
}

void TApplication::RunQueued() {
  if (Held()) return;
  const TLifeScope scope(this);
  std::vector<QueuedCall> calls;
  calls.swap(queue_);
  for (const QueuedCall& queued : calls) {
    if (queued.context && !Ended()) RunGuarded(queued.context, queued.call);
  }
}

std::vector<QPointer<TForm>> TApplication::FormsNewestFirst() const {
  std::vector<QPointer<TForm>> forms;
  for (int i = screen_->FormCount() - 1; i >= 0; --i) forms.emplace_back(screen_->Forms(i));
  return forms;
}

void TApplication::CloseAll(const std::vector<TForm*>& first) {
  // A second call, from within the first, runs the handlers that are left; a third has nothing to add.
  if (closing_ > 1) return;
  const TLifeScope scope(this);
  ++closing_;
  const std::vector<QPointer<TForm>> forms = FormsNewestFirst();
  for (const QPointer<TForm>& form : forms) {
    if (form) form->CloseChildWindows();
  }
  for (const QPointer<TForm>& form : forms) {
    if (form) form->EndModal();
  }
  std::vector<QPointer<TForm>> order(first.begin(), first.end());
  order.insert(order.end(), forms.begin(), forms.end());
  for (const QPointer<TForm>& form : order) {
    if (form) form->BeforeDestruction();
  }
  for (const QPointer<TForm>& form : forms) {
    if (form) form->Retire();
  }
}

void TApplication::HandleException(TObject* sender) noexcept {
  const std::exception_ptr error = std::current_exception();
  if (error == nullptr || Ended()) return;
  try {
    if (OnException) {
      OnException(sender, error);
    } else {
      std::rethrow_exception(error);
    }
  } catch (const norvik::LifeEnded&) {
    // The host has released the module while the failure was shown.
  } catch (const std::exception& failure) {
    qWarning("%s", failure.what());
  } catch (...) {
    qWarning("an unknown failure reached the edge of the forms");
  }
}

THold::THold() : life_(Application) {
  if (life_ != nullptr) life_->Hold();
}

THold::~THold() {
  if (life_ != nullptr) life_->Unhold();
}

TApplication* NewestApplication() {
  return static_cast<TApplication*>(NewestLife());
}

void CreateApplication() {
  if (NewestLife() != nullptr) return;
  DeleteEndedLives();
  Serve(new TApplication);
}

void DestroyApplication() {
  TApplication* const life = NewestApplication();
  if (life == nullptr) return;
  const TLifeScope scope(life, TLifeScope::Returns::kToHost);
  life->CloseAll({});
  life->End();
}
