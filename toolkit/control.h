#pragma once

#include <QPointer>
#include <QWidget>
#include <string>
#include <vector>

#include "toolkit/component.h"
#include "toolkit/font.h"

class QMouseEvent;
class QKeyEvent;
class TAction;
class TForm;
class TPopupMenu;
class TWinControl;

/// Something visible. It holds one Qt widget, which bears its name and dies with it or with the parent's.
/// Event members run inside the application's guard; changes made by code run none of them.
class TControl : public TComponent {
  Q_OBJECT
  Q_PROPERTY(QString Hint READ PublishedHint WRITE SetPublishedHint)
  Q_PROPERTY(QObject* Font READ PublishedFont WRITE SetPublishedFont)

 public:
  ~TControl() override;

  void SetName(const std::string& name) override;
  /// The Qt widget, null once it has been deleted from outside.
  QWidget* Widget() const { return widget_; }
  /// The control that holds this one, null before it has been placed.
  TWinControl* Parent() const { return parent_; }
  /// Moves the control, and its widget, into another; null takes it out.
  void SetParent(TWinControl* parent);
  /// The form that the control stands on, null when it stands on none.
  TForm* ParentForm() const;

  /// The control's own wish; it shows only when all its parents show, too.
  bool Visible() const { return visible_; }
  virtual void SetVisible(bool visible);
  virtual bool Enabled() const { return enabled_; }
  virtual void SetEnabled(bool enabled);
  /// Text shown while the mouse rests on the control, when ShowHint is on.
  std::string Hint() const { return hint_; }
  void SetHint(const std::string& hint);
  bool ShowHint() const { return show_hint_; }
  void SetShowHint(bool show);

  /// Caption of the control; controls without one keep it and show nothing.
  virtual std::string Caption() const { return caption_; }
  virtual void SetCaption(const std::string& caption);

  /// Place in the parent, pixels. Within a layout only a width or a height that was set counts.
  int Left() const;
  int Top() const;
  int Width() const;
  int Height() const;
  void SetLeft(int left);
  void SetTop(int top);
  virtual void SetWidth(int width);
  virtual void SetHeight(int height);
  void SetBounds(int left, int top, int width, int height);
  /// How a parent without a layout places the control.
  TAlign Align() const { return align_; }
  void SetAlign(TAlign align);
  /// A point of the control in screen coordinates.
  QPoint ClientToScreen(int x, int y) const;

  TFont* Font() const { return font_; }

  /// The action that names, enables, shows and executes the control; null takes it off. The control takes all
  /// values of the action when it is bound and those that change afterwards (see TAction). The widget bears
  /// its name in the property "action", so that a script or a test finds it.
  TAction* Action() const;
  void SetAction(TAction* action);
  /// Menu opened by the right mouse button.
  TPopupMenu* PopupMenu() const;
  void SetPopupMenu(TPopupMenu* menu);
  /// Index of the picture that the control shows, -1: none.
  virtual int ImageIndex() const { return -1; }
  /// What a click does: OnClick, or the action when there is no OnClick. Nothing while disabled.
  virtual void Click();

  TNotifyEvent OnClick;
  TNotifyEvent OnDblClick;
  TMouseEvent OnMouseDown;
  TMouseEvent OnMouseUp;

  QString PublishedHint() const;
  void SetPublishedHint(const QString& hint);
  QString PublishedCaption() const;
  void SetPublishedCaption(const QString& caption);
  QObject* PublishedFont() const { return font_; }
  void SetPublishedFont(QObject* font);

 protected:
  explicit TControl(TComponent* owner);
  /// Takes the control's widget; called once, in a constructor.
  void SetWidget(QWidget* widget);
  /// Watches a further widget inside the control for the control's events.
  void WatchWidget(QWidget* widget);
  /// Puts the caption on the widget.
  virtual void CaptionChanged() {}
  /// Puts the font on the widget.
  virtual void FontChanged();
  /// Takes the action's check; nothing in a control without one.
  virtual void TakeChecked(bool) {}
  /// Takes the action's picture; nothing in a control without one.
  virtual void TakeImage(const TAction&) {}
  /// An event of a watched widget; true ends its way.
  virtual bool WidgetEvent(QWidget* widget, QEvent* event);
  /// Whether a click of the left button is the control's Click (buttons report theirs by themselves).
  virtual bool ClicksByMouse() const { return true; }
  /// Whether mouse events end here instead of going on to what lies behind the control.
  virtual bool EndsMouseEvents() const { return false; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend class TAction;
  friend class TWinControl;
  bool MouseEvent(QWidget* widget, QMouseEvent* event);

  QPointer<QWidget> widget_;
  std::vector<QPointer<QWidget>> watched_;
  TWinControl* parent_ = nullptr;
  TFont* font_;
  QPointer<QObject> action_;
  QPointer<QObject> popup_menu_;
  std::string hint_;
  std::string caption_;
  TAlign align_ = alNone;
  bool visible_ = true;
  bool enabled_ = true;
  bool show_hint_ = false;
  bool pressed_ = false;
};

/// A control that takes no focus and holds no others: labels, pictures, lines.
class TGraphicControl : public TControl {
  Q_OBJECT

 protected:
  explicit TGraphicControl(TComponent* owner) : TControl(owner) {}
  bool EndsMouseEvents() const override { return true; }
};

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
