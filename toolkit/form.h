// Windows: how a form is made in steps, shown, closed and destroyed, what Return, Escape and the window
// messages do in it. The screens and dialogs are forms. Main menus, docking, printing and
// child windows of the original's forms are not there; which forms there are is listed by screen.h.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "toolkit/life.h"
#include "toolkit/win_control.h"

class QEventLoop;

/// Message to TForm::Dispatch: the window became active or inactive, as wParam says.
inline constexpr std::uint32_t WM_ACTIVATE = 6;
/// Message to TForm::Dispatch: a command of the window's menu, which wParam names.
inline constexpr std::uint32_t WM_SYSCOMMAND = 0x112;
/// wParam of WM_SYSCOMMAND: the window is to be shown and made active.
inline constexpr std::uintptr_t SC_RESTORE = 0xF120;
/// wParam of WM_ACTIVATE: inactive, active by code or keyboard, active by a click.
inline constexpr std::uintptr_t WA_INACTIVE = 0;
inline constexpr std::uintptr_t WA_ACTIVE = 1;
inline constexpr std::uintptr_t WA_CLICKACTIVE = 2;

/// A window. Made by CreateForm, which runs BuildControls, SetCaptions and Construct in this order; deleted
/// by DestroyForm or by its owner, after FormDestroy has run. It starts hidden; closing hides it.
class TForm : public TWinControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  /// owner: Application, another form, or null.
  explicit TForm(TComponent* owner);
  ~TForm() override;

  /// Makes the controls: the form resource. A descendant calls its base's first.
  virtual void BuildControls() {}
  /// Gives the controls their caption keys. A descendant calls its base's first.
  virtual void SetCaptions() {}
  /// What the original's constructors do after the form resource. A descendant calls its base's first.
  virtual void Construct() {}
  /// Runs once before the form is deleted; here it runs OnDestroy.
  virtual void FormDestroy();

  /// Runs OnShow, shows the form and brings it to the front; an already visible form only comes to the front.
  /// A failing OnShow is reported like that of any event, and the form shows all the same.
  void Show();
  /// Hides the form without OnClose.
  void Hide();
  /// Runs OnClose and hides the form. In ShowModal the result becomes mrCancel when it is still 0, and
  /// OnClose runs once, at the end of the loop.
  void Close();
  /// Shows the form and returns its modal result, not 0, when it has been closed. Until then no other window
  /// of the process takes input. A failing OnShow is reported, and the form shows all the same.
  int ShowModal();
  /// Result of the running or last ShowModal, 0 while there is none.
  int ModalResult() const { return modalResult_; }
  /// A number other than 0 ends ShowModal as soon as the running event is over.
  void SetModalResult(int result);
  /// Whether the window is on the screen.
  bool Showing() const;
  /// Whether the window is the one that the user works in.
  bool Active() const;
  /// Puts the window above the others and makes it active.
  void BringToFront();

  /// Frame of the window; bsSizeable at the start.
  TFormBorderStyle BorderStyle() const { return borderStyle_; }
  void SetBorderStyle(TFormBorderStyle style);
  /// Whether the window stays above the others; fsNormal at the start.
  TFormStyle FormStyle() const { return formStyle_; }
  void SetFormStyle(TFormStyle style);
  /// Where the form opens: as designed (the platform chooses), in the middle of the screen, of the host's
  /// main window, or of the owner form (of the main window when the owner is no form).
  TPosition Position() const { return position_; }
  void SetPosition(TPosition position) { position_ = position; }
  /// Sets the inner width, which the form keeps when it opens instead of what its layout asks for.
  void SetWidth(int width) override;
  /// The same for the inner height.
  void SetHeight(int height) override;
  /// Inner width, pixels; the same as Width, which leaves the frame out.
  int ClientWidth() const { return Width(); }
  /// Inner height, pixels.
  int ClientHeight() const { return Height(); }

  /// Whether OnKeyDown of the form sees a key before the control that has the focus.
  bool KeyPreview() const { return keyPreview_; }
  void SetKeyPreview(bool preview) { keyPreview_ = preview; }
  /// The control that has, or will have, the focus; null when there is none.
  TWinControl* ActiveControl() const;
  void SetActiveControl(TWinControl* control);
  /// Button that Return presses, before any other use of the key; null: none. With Shift, Ctrl or Alt the key
  /// presses none.
  TWinControl* DefaultButton() const { return defaultButton_; }
  void SetDefaultButton(TWinControl* button);
  /// The same for Escape.
  TWinControl* CancelButton() const { return cancelButton_; }
  void SetCancelButton(TWinControl* button) { cancelButton_ = button; }

  /// Font of the form's menus, null: the one that the skin or the platform gives. Not owned.
  TFont* MenuFont() const { return menuFont_; }
  void SetMenuFont(TFont* font) { menuFont_ = font; }

  /// Handle of the form as a window that takes messages, made at the first call; valid until the form is
  /// deleted.
  std::uint32_t Handle();
  /// Takes a message. Here: WM_SYSCOMMAND with SC_RESTORE shows and activates the window, WM_ACTIVATE (which
  /// the layer sends when the window becomes active or inactive) runs OnActivate; all else is ignored and
  /// gives 0.
  virtual std::intptr_t Dispatch(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam);

  /// Runs FormDestroy, once, of a form that was made completely. A failure is reported.
  void BeforeDestruction() override;
  /// Ends ShowModal as if cancelled, OnClose included, if it is running: the window is hidden at once, and
  /// the loop ends with the running event.
  void EndModal();
  /// Closes what has opened over the form: menus, the lists of boxes, file dialogs.
  void CloseChildWindows();
  /// Hides the window for ever; messages to the handle are ignored from now on.
  void Retire();
  /// Takes the window out of its parent, which is being deleted, and hides it; a modal form ends as
  /// cancelled with the running event.
  void LoseParent();
  /// Says that each step of CreateForm has been taken.
  void MarkMade() { made_ = true; }
  /// Gives the window the form's class name as object name; CreateForm and each show do it.
  void NameWindow();

  /// Runs before the window shows.
  TNotifyEvent OnShow;
  /// Runs when the form is closed, before the window is hidden.
  TNotifyEvent OnClose;
  /// Runs once before the form is deleted.
  TNotifyEvent OnDestroy;
  /// Runs when the window becomes active.
  TNotifyEvent OnActivate;

 protected:
  void CaptionChanged() override;
  bool WidgetEvent(QWidget* widget, QEvent* event) override;
  QWidget* FocusWidget() const override { return nullptr; }

 private:
  friend class TWinControl;
  bool PressDialogButton(std::uint16_t key, TShiftState shift, bool controlWantsReturn);
  void ApplyWindowFlags();
  void OpenWindow();
  QPoint OpeningPlace() const;
  void FinishModal();
  void WindowActivated(bool active);
  void FocusMoved(TWinControl* control) { activeControl_ = control; }

  QPointer<TWinControl> activeControl_;
  QPointer<TWinControl> defaultButton_;
  QPointer<TWinControl> cancelButton_;
  QPointer<TFont> menuFont_;
  TFormBorderStyle borderStyle_ = bsSizeable;
  TFormStyle formStyle_ = fsNormal;
  TPosition position_ = poDesigned;
  std::uint32_t handle_ = 0;
  int modalResult_ = mrNone;
  QEventLoop* loop_ = nullptr;
  bool keyPreview_ = false;
  bool widthSet_ = false;
  bool heightSet_ = false;
  bool made_ = false;
  bool opening_ = false;
  bool destroyed_ = false;
};

/// Deletes a form: FormDestroy first, whose exceptions go to the application's handler. Null does nothing. A
/// form of a life that is ending is only hidden, and deleted with the life.
void DestroyForm(TForm* form);

/// Deletes a form by DestroyForm.
struct TFormDeleter {
  /// Null does nothing.
  void operator()(TForm* form) const { DestroyForm(form); }
};
/// A form for one showing, destroyed at the end of its block.
template <class T>
using TFormPointer = std::unique_ptr<T, TFormDeleter>;

/// Makes a form of class T; its owner, if any, deletes it at the latest. An exception of a step deletes it
/// and is passed on; so does the end of its life, with LifeEnded.
template <class T, class... Arguments>
T* CreateForm(TComponent* owner, Arguments&&... arguments) {
  auto form = std::make_unique<T>(owner, std::forward<Arguments>(arguments)...);
  form->NameWindow();
  form->BuildControls();
  form->SetCaptions();
  form->Construct();
  CheckLife();
  form->MarkMade();
  return form.release();
}
