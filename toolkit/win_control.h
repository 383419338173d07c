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

  /// The controls inside, in the order in which they came.
  int ControlCount() const { return static_cast<int>(controls_.size()); }
  TControl* Controls(int index) const { return controls_.at(static_cast<std::size_t>(index)); }
  /// The widget that children and layouts live in.
  virtual QWidget* ClientWidget() const { return Widget(); }

  /// Place in the parent's tab order; -1 at the start: in the order of arrival.
  int TabOrder() const { return tab_order_; }
  void SetTabOrder(int order) { tab_order_ = order; }
  /// Whether the keyboard stops at the control.
  bool TabStop() const { return tab_stop_; }
  void SetTabStop(bool stop) { tab_stop_ = stop; }
  /// Whether the control and all its parents are visible and enabled, and it takes the focus at all.
  bool CanFocus() const;
  /// Gives the control the focus, or makes it the first when its form isn't shown yet.
  void SetFocus();
  bool Focused() const;
  /// Moves the focus to the next control behind current, round the end; false when there is no other.
  bool SelectNext(TWinControl* current, bool forward, bool tabStopsOnly);

  /// imDisable shuts the input method out of the control; the other modes let it in.
  int ImeMode() const { return ime_mode_; }
  void SetImeMode(int mode);
  /// Name of the input method; kept for the host, the platform chooses its own.
  std::string ImeName() const { return ime_name_; }
  void SetImeName(const std::string& name) { ime_name_ = name; }
  QString PublishedImeName() const;
  void SetPublishedImeName(const QString& name);

  TKeyEvent OnKeyDown;
  TKeyPressEvent OnKeyPress;
  TNotifyEvent OnEnter;
  TNotifyEvent OnExit;

 protected:
  explicit TWinControl(TComponent* owner) : TControl(owner) {}
  /// Whether Return belongs to the control itself, so that it presses no default button.
  virtual bool WantsReturn() const { return false; }
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
  int tab_order_ = -1;
  bool tab_stop_ = false;
  int ime_mode_ = imDontCare;
  std::string ime_name_;
};

/// A control that knows the skin.
class TbsSkinControl : public TWinControl {
  Q_OBJECT
  Q_PROPERTY(QObject* SkinData READ SkinData WRITE SetSkinData)
  Q_PROPERTY(bool UseSkinFont READ UseSkinFont WRITE SetUseSkinFont)
  Q_PROPERTY(bool UseSkinFontColor READ UseSkinFontColor WRITE SetUseSkinFontColor)
  Q_PROPERTY(bool UseSkinSize READ UseSkinSize WRITE SetUseSkinSize)

 public:
  /// The skin of the control's form; the control keeps it and is drawn by the form's skin frame.
  QObject* SkinData() const { return skin_data_; }
  void SetSkinData(QObject* data) { skin_data_ = data; }
  /// Whether the skin gives the font; the layer's skins never do.
  bool UseSkinFont() const { return use_skin_font_; }
  void SetUseSkinFont(bool use) { use_skin_font_ = use; }
  /// Whether the skin gives the colour of the text; off: the font's colour.
  bool UseSkinFontColor() const { return use_skin_font_color_; }
  void SetUseSkinFontColor(bool use);
  /// Whether the skin gives the control's size; the layer's skins never do.
  bool UseSkinSize() const { return use_skin_size_; }
  void SetUseSkinSize(bool use) { use_skin_size_ = use; }

 protected:
  explicit TbsSkinControl(TComponent* owner) : TWinControl(owner) {}

 private:
  QPointer<QObject> skin_data_;
  bool use_skin_font_ = true;
  bool use_skin_font_color_ = true;
  bool use_skin_size_ = true;
};
