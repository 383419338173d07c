// Controls that take the focus or hold others, and those of them that a skin draws. Forms, panels, edits and
// lists are made on them; a form's walk over its controls goes by Controls. Labels and pictures are no
// windowed controls (see control.h).
#pragma once

#include <QPointer>
#include <string>
#include <vector>

#include "toolkit/control.h"

class QKeyEvent;
class TForm;

/// A control that can hold others or take the focus.
class TWinControl : public TControl {
  Q_OBJECT

 public:
  ~TWinControl() override;

  /// Number of the controls inside.
  int ControlCount() const { return static_cast<int>(controls_.size()); }
  /// A control inside by its place in the order of arrival, from 0; std::out_of_range when there is none.
  TControl* Controls(int index) const { return controls_.at(static_cast<std::size_t>(index)); }
  /// The widget that children and layouts are placed in.
  virtual QWidget* ClientWidget() const { return Widget(); }

  /// Place in the parent's tab order; -1 at the start: in the order of arrival.
  int TabOrder() const { return tabOrder_; }
  void SetTabOrder(int order) { tabOrder_ = order; }
  /// Whether the keyboard stops at the control.
  bool TabStop() const { return tabStop_; }
  void SetTabStop(bool stop) { tabStop_ = stop; }
  /// Whether the control and all its parents are visible and enabled, and it takes the focus at all.
  bool CanFocus() const;
  /// Gives the control the focus, or makes it the first when its form isn't shown yet.
  void SetFocus();
  /// Whether the control has the focus.
  bool Focused() const;
  /// Moves the focus to the next control after current, from the end on to the beginning; false when there is
  /// no other.
  bool SelectNext(TWinControl* current, bool forward, bool tabStopsOnly);

  /// Shows the control as the one that Return presses; only buttons do. TForm::SetDefaultButton calls it.
  virtual void MarkDefault() {}

  /// A TImeMode: imDisable turns the input method off in the control, the others leave it on.
  int ImeMode() const { return imeMode_; }
  void SetImeMode(int mode);
  /// Name of the input method. Stored only: the platform chooses its own.
  std::string ImeName() const { return imeName_; }
  void SetImeName(const std::string& name) { imeName_ = name; }
  QString PublishedImeName() const;
  void SetPublishedImeName(const QString& name);

  /// Runs when a key goes down while the control has the focus.
  TKeyEvent OnKeyDown;
  /// Runs after OnKeyDown for a key that types a character of one byte.
  TKeyPressEvent OnKeyPress;
  /// Runs when the control gets the focus.
  TNotifyEvent OnEnter;
  /// Runs when the focus goes to another control, not to a menu or another window.
  TNotifyEvent OnExit;

 protected:
  explicit TWinControl(TComponent* owner) : TControl(owner) {}
  /// Whether Return belongs to the control itself, so that it presses no default button.
  virtual bool WantsReturn() const { return false; }
  /// Whether the control is a button, which Return presses while it has the focus.
  virtual bool IsButton() const { return false; }
  /// Whether the control only heads others: a form that opens gives the focus to the control after it.
  virtual bool HeadsOthers() const { return false; }
  /// What Return does when no handler took it; a button clicks. True: the widget doesn't see the key, which
  /// on some desktops presses a button, too.
  virtual bool ReturnPressed() { return false; }
  /// The widget that takes the focus, null when the control takes none.
  virtual QWidget* FocusWidget() const { return Widget(); }
  /// Whether the focus on this widget is the control's; a control of several such widgets says so.
  virtual bool HoldsFocusOn(const QWidget* widget) const { return widget == FocusWidget(); }
  bool WidgetEvent(QWidget* widget, QEvent* event) override;
  /// Places the aligned children; the container's layout, if it has one, does it instead.
  void AlignControls();

 private:
  friend class TControl;
  friend class TForm;
  bool KeyEvent(QKeyEvent* event);
  void OpenPopupMenu();
  void TabOrderList(std::vector<TWinControl*>& list) const;

  std::vector<TControl*> controls_;
  int tabOrder_ = -1;
  bool tabStop_ = false;
  int imeMode_ = imDontCare;
  std::string imeName_;
};

/// A control that knows the skin.
class TbsSkinControl : public TWinControl {
  Q_OBJECT
  Q_PROPERTY(QObject* SkinData READ SkinData WRITE SetSkinData)
  Q_PROPERTY(bool UseSkinFont READ UseSkinFont WRITE SetUseSkinFont)
  Q_PROPERTY(bool UseSkinFontColor READ UseSkinFontColor WRITE SetUseSkinFontColor)
  Q_PROPERTY(bool UseSkinSize READ UseSkinSize WRITE SetUseSkinSize)

 public:
  /// The skin of the control's form; the control stores it and is drawn by the form's skin frame.
  QObject* SkinData() const { return skinData_; }
  void SetSkinData(QObject* data) { skinData_ = data; }
  /// Whether the skin gives the font; the layer's skins never do.
  bool UseSkinFont() const { return useSkinFont_; }
  void SetUseSkinFont(bool use) { useSkinFont_ = use; }
  /// Whether the skin gives the colour of the text; off: the font's colour.
  bool UseSkinFontColor() const { return useSkinFontColor_; }
  void SetUseSkinFontColor(bool use);
  /// Whether the skin gives the control's size; the layer's skins never do.
  bool UseSkinSize() const { return useSkinSize_; }
  void SetUseSkinSize(bool use) { useSkinSize_ = use; }

 protected:
  explicit TbsSkinControl(TComponent* owner) : TWinControl(owner) {}

 private:
  QPointer<QObject> skinData_;
  bool useSkinFont_ = true;
  bool useSkinFontColor_ = true;
  bool useSkinSize_ = true;
};
