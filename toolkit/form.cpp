#include "toolkit/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QLayout>
#include <QScreen>
#include <QWindow>
#include <utility>

#include "platform/host_api.h"
#include "toolkit/event_guard.h"
#include "toolkit/text.h"

namespace {

// The window of a form. The Tab key goes by the form's own tab order.
class FormWindow : public QWidget {
 public:
  FormWindow(TForm* form, QWidget* parent) : QWidget(parent, Qt::Window), form_(form) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_StyledBackground);
    setProperty("skin", QString::fromLatin1("form"));
  }

 protected:
  bool focusNextPrevChild(bool next) override {
    return form_->SelectNext(form_->ActiveControl(), next, true);
  }

 private:
  TForm* form_;
};

// An owner form's window; without one, the host's main window.
QWidget* ParentWindow(const TComponent* owner) {
  if (const auto* form = qobject_cast<const TForm*>(owner)) return form->Widget();
  return ServedLife() == nullptr ? nullptr : ServedLife()->MainWidget();
}

// Keeps a window above the modal one that was on top before it, whoever owns it: a window manager that
// raises the lower one at a click would hide the only window that takes input.
void StayAbove(QWidget* window, const QWidget* below) {
  if (below == nullptr || below == window) return;
  window->winId();
  window->windowHandle()->setTransientParent(below->window()->windowHandle());
}

std::intptr_t FormProcedure(void* context, std::uint32_t message, std::uintptr_t wparam,
                            std::intptr_t lparam) {
  auto* form = static_cast<TForm*>(context);
  std::intptr_t result = 0;
  RunGuarded(form, [&] { result = form->Dispatch(message, wparam, lparam); });
  return result;
}

}  // namespace

TForm::TForm(TComponent* owner) : TWinControl(owner) {
  SetWidget(new FormWindow(this, ParentWindow(owner)));
  if (Life() != nullptr) Life()->AddForm(this);
}

TForm::~TForm() {
  if (loop_ != nullptr) loop_->quit();
  if (Life() != nullptr) Life()->RemoveForm(this);
  if (handle_ != 0) norvik_window_unregister(handle_);
  if (Widget() != nullptr) {
    Widget()->removeEventFilter(this);
    Widget()->hide();
  }
  DestroyComponents();
}

void TForm::NameWindow() {
  if (Widget() != nullptr) Widget()->setObjectName(ToQt(ClassName()));
}

void TForm::FormDestroy() {
  FireEvent(OnDestroy, this);
}

void TForm::BeforeDestruction() {
  if (destroyed_ || !made_) return;
  const QPointer<TForm> self(this);
  RunGuarded(this, [this] { FormDestroy(); });
  if (self) destroyed_ = true;
}

void DestroyForm(TForm* form) {
  if (form == nullptr) return;
  const TLife* const life = LifeOf(form);
  if (!HasEnded(life)) form->BeforeDestruction();
  if (HasEnded(life) || (life != nullptr && life->Closing())) {
    form->Hide();
  } else {
    delete form;
  }
}

bool TForm::Showing() const {
  return Widget() != nullptr && Widget()->isVisible();
}

bool TForm::Active() const {
  return Widget() != nullptr && Widget()->isActiveWindow();
}

void TForm::BringToFront() {
  if (Widget() == nullptr) return;
  Widget()->raise();
  Widget()->activateWindow();
}

void TForm::Show() {
  // The host may pick the form's item once more while it answers what the form asks on its way.
  if (opening_) return;
  if (Showing()) {
    BringToFront();
  } else {
    OpenWindow();
  }
  CheckLife();
}

void TForm::OpenWindow() {
  const QPointer<TForm> self(this);
  NameWindow();
  opening_ = true;
  FireEvent(OnShow, this);
  if (!self) return;
  opening_ = false;
  if (Widget() == nullptr || HasEnded(Life())) return;
  QWidget* window = Widget();
  window->ensurePolished();
  // What was added since a layout measured itself counts only after these events.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  const QSize wanted = window->layout() == nullptr ? window->size() : window->sizeHint();
  window->resize(widthSet_ ? window->width() : wanted.width(),
                 heightSet_ ? window->height() : wanted.height());
  if (position_ != poDesigned) window->move(OpeningPlace());
  if (!activeControl_ || !activeControl_->CanFocus()) activeControl_ = nullptr;
  if (loop_ != nullptr) StayAbove(window, QApplication::activeModalWidget());
  window->show();
  BringToFront();
  if (activeControl_) {
    activeControl_->SetFocus();
  } else {
    // The user starts on the first condition, not on the header of the roll-up panel around it.
    SelectNext(nullptr, true, true);
    if (activeControl_ && activeControl_->HeadsOthers()) SelectNext(activeControl_, true, true);
  }
}

QPoint TForm::OpeningPlace() const {
  const QWidget* window = Widget();
  const QWidget* centre = nullptr;
  if (position_ == poOwnerFormCenter) {
    const auto* owner = qobject_cast<const TForm*>(Owner());
    if (owner != nullptr && owner->Showing()) centre = owner->Widget();
  }
  if (centre == nullptr && position_ != poScreenCenter && ServedLife() != nullptr) {
    centre = ServedLife()->MainWidget();
  }
  const QRect screen = (centre == nullptr ? window : centre)->screen()->availableGeometry();
  const QRect room = centre == nullptr || !centre->isVisible() ? screen : centre->window()->frameGeometry();
  QRect at(QPoint(0, 0), window->size());
  at.moveCenter(room.center());
  // A form larger than the screen keeps its upper left corner in sight.
  const int left = std::max(screen.left(), std::min(at.left(), screen.right() - at.width() + 1));
  const int top = std::max(screen.top(), std::min(at.top(), screen.bottom() - at.height() + 1));
  return {left, top};
}

void TForm::Hide() {
  if (Widget() != nullptr) Widget()->hide();
}

void TForm::Close() {
  if (loop_ != nullptr) {
    SetModalResult(modalResult_ == mrNone ? mrCancel : modalResult_);
    return;
  }
  if (!Showing()) return;
  const QPointer<TForm> self(this);
  FireEvent(OnClose, this);
  if (self) Hide();
}

void TForm::SetModalResult(int result) {
  modalResult_ = result;
  if (result != mrNone && loop_ != nullptr) loop_->quit();
}

int TForm::ShowModal() {
  const TLifeScope scope(LifeOf(this));
  scope.Check();
  if (loop_ != nullptr || Widget() == nullptr) return mrCancel;
  const QPointer<TForm> self(this);
  const QPointer<QWidget> before(QApplication::activeWindow());
  QEventLoop loop;
  loop_ = &loop;
  modalResult_ = mrNone;
  // A host that deletes its main window takes the form's window with it.
  QObject::connect(Widget(), &QObject::destroyed, &loop, &QEventLoop::quit);
  Widget()->hide();
  Widget()->setWindowModality(Qt::ApplicationModal);
  OpenWindow();
  if (self && loop_ != nullptr && Widget() != nullptr && modalResult_ == mrNone) loop.exec();
  if (self) loop_ = nullptr;
  scope.Check();
  if (!self) return mrCancel;
  if (modalResult_ == mrNone) modalResult_ = mrCancel;
  FinishModal();
  if (before && before->isVisible()) before->activateWindow();
  scope.Check();
  return self ? modalResult_ : mrCancel;
}

void TForm::EndModal() {
  if (loop_ == nullptr) return;
  QEventLoop* const loop = std::exchange(loop_, nullptr);
  if (modalResult_ == mrNone) modalResult_ = mrCancel;
  const QPointer<QEventLoop> kept(loop);
  FinishModal();
  if (kept) loop->quit();
}

void TForm::FinishModal() {
  const QPointer<TForm> self(this);
  FireEvent(OnClose, this);
  if (!self || Widget() == nullptr) return;
  Widget()->hide();
  Widget()->setWindowModality(Qt::NonModal);
}

void TForm::SetBorderStyle(TFormBorderStyle style) {
  borderStyle_ = style;
  ApplyWindowFlags();
}

void TForm::SetFormStyle(TFormStyle style) {
  formStyle_ = style;
  ApplyWindowFlags();
}

void TForm::ApplyWindowFlags() {
  if (Widget() == nullptr) return;
  Qt::WindowFlags flags = borderStyle_ == bsDialog ? Qt::Dialog : Qt::Window;
  if (borderStyle_ == bsNone) flags |= Qt::FramelessWindowHint;
  if (borderStyle_ == bsDialog) {
    flags |=
        Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  }
  if (borderStyle_ == bsSingle) {
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
             Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
  }
  if (formStyle_ == fsStayOnTop) flags |= Qt::WindowStaysOnTopHint;
  if (Widget()->windowFlags() == flags) return;
  const bool showing = Showing();
  Widget()->setWindowFlags(flags);
  if (showing) Widget()->show();
}

void TForm::SetWidth(int width) {
  widthSet_ = true;
  if (Widget() != nullptr) Widget()->resize(width, Height());
}

void TForm::SetHeight(int height) {
  heightSet_ = true;
  if (Widget() != nullptr) Widget()->resize(Width(), height);
}

TWinControl* TForm::ActiveControl() const {
  return activeControl_;
}

void TForm::SetActiveControl(TWinControl* control) {
  if (control == nullptr) {
    activeControl_ = nullptr;
  } else if (Showing()) {
    control->SetFocus();
  } else {
    activeControl_ = control;
  }
}

void TForm::SetDefaultButton(TWinControl* button) {
  defaultButton_ = button;
  if (button != nullptr) button->MarkDefault();
}

bool TForm::PressDialogButton(std::uint16_t key, TShiftState shift, bool controlWantsReturn) {
  if (shift.Contains(ssShift) || shift.Contains(ssCtrl) || shift.Contains(ssAlt)) return false;
  TWinControl* button = nullptr;
  if (key == VK_RETURN && !controlWantsReturn) {
    // Return presses the button that has the focus, whichever is marked as default.
    const bool onButton = defaultButton_ && activeControl_ && activeControl_->IsButton();
    button = onButton ? activeControl_ : defaultButton_;
  }
  if (key == VK_ESCAPE) button = CancelButton();
  if (button == nullptr || !button->Enabled() || !button->Visible()) return false;
  button->Click();
  return true;
}

void TForm::CloseChildWindows() {
  if (Widget() == nullptr) return;
  for (QWidget* child : Widget()->findChildren<QWidget*>()) {
    if (!child->isWindow() || !child->isVisible() || dynamic_cast<FormWindow*>(child) != nullptr) continue;
    if (auto* dialog = qobject_cast<QDialog*>(child)) dialog->reject();
    child->hide();
  }
}

void TForm::LoseParent() {
  if (Widget() == nullptr) return;
  CloseChildWindows();
  if (loop_ != nullptr) SetModalResult(modalResult_ == mrNone ? mrCancel : modalResult_);
  Hide();
  // The window of a form that another form owns leaves the parent with that one.
  if (qobject_cast<TForm*>(Owner()) == nullptr) Widget()->setParent(nullptr, Widget()->windowFlags());
}

void TForm::Retire() {
  if (handle_ != 0) norvik_window_unregister(std::exchange(handle_, 0));
  Hide();
}

std::uint32_t TForm::Handle() {
  if (handle_ == 0) handle_ = norvik_window_register(&FormProcedure, this, Widget());
  return handle_;
}

std::intptr_t TForm::Dispatch(std::uint32_t message, std::uintptr_t wparam, std::intptr_t) {
  if (message == WM_ACTIVATE && wparam != WA_INACTIVE) FireEvent(OnActivate, this);
  if (message == WM_SYSCOMMAND && (wparam & 0xFFF0) == SC_RESTORE && Widget() != nullptr && Showing()) {
    Widget()->setWindowState(Widget()->windowState() & ~Qt::WindowMinimized);
    BringToFront();
  }
  return 0;
}

void TForm::CaptionChanged() {
  if (Widget() != nullptr) Widget()->setWindowTitle(ToQt(Caption()));
}

void TForm::WindowActivated(bool active) {
  const bool clicked = QGuiApplication::mouseButtons() != Qt::NoButton;
  const std::uintptr_t state = !active ? WA_INACTIVE : clicked ? WA_CLICKACTIVE : WA_ACTIVE;
  RunGuarded(this, [&] { Dispatch(WM_ACTIVATE, state, 0); });
}

bool TForm::WidgetEvent(QWidget* widget, QEvent* event) {
  switch (event->type()) {
    case QEvent::Close:
      event->ignore();
      Close();
      return true;
    case QEvent::WindowActivate:
      WindowActivated(true);
      return false;
    case QEvent::WindowDeactivate:
      WindowActivated(false);
      return false;
    default:
      return TWinControl::WidgetEvent(widget, event);
  }
}
