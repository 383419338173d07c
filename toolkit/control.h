// What is visible on a form: place, caption, hint, font, mouse and the bond to an action, over one Qt widget.
// Every visible class of the layer is made on it. Keyboard, focus and containment begin with win_control.h;
// help contexts, dragging and cursors of the original's controls are not there.
#pragma once

#include <QPointer>
#include <QWidget>
#include <string>
#include <vector>

#include "toolkit/action_client.h"
#include "toolkit/component.h"
#include "toolkit/font.h"

class QMouseEvent;
class TForm;
class TPopupMenu;
class TWinControl;

/// Something visible. It holds one Qt widget, which bears its name and dies with it or with the parent's.
/// Event members run inside the application's guard; changes made by code run none of them.
class TControl : public TComponent, public TActionClient {
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
  /// The form that the control is on, null when it is on none.
  TForm* ParentForm() const;

  /// The control's own wish; it shows only when all its parents show, too.
  bool Visible() const final { return visible_; }
  void SetVisible(bool visible) override;
  /// The control's own wish; it can be used only when all its parents are enabled, too.
  bool Enabled() const override { return enabled_; }
  void SetEnabled(bool enabled) override;
  /// Text shown while the mouse rests on the control, when ShowHint is on.
  std::string Hint() const final { return hint_; }
  void SetHint(const std::string& hint) final;
  /// Whether the hint shows; false at the start.
  bool ShowHint() const { return showHint_; }
  void SetShowHint(bool show);

  /// Caption of the control; controls without one keep it and show nothing.
  std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override;

  /// Distance from the parent's left edge, pixels. Within a layout only a width or a height that was set
  /// counts.
  int Left() const;
  /// Distance from the parent's upper edge, pixels.
  int Top() const;
  /// Pixels.
  int Width() const;
  /// Pixels.
  int Height() const;
  void SetLeft(int left);
  void SetTop(int top);
  virtual void SetWidth(int width);
  virtual void SetHeight(int height);
  /// Sets all four.
  void SetBounds(int left, int top, int width, int height);
  /// How a parent without a layout places the control.
  TAlign Align() const { return align_; }
  void SetAlign(TAlign align);
  /// A point of the control in screen coordinates.
  QPoint ClientToScreen(int x, int y) const;

  /// The font of the control, never null; the control owns it.
  TFont* Font() const { return font_; }

  /// The action that names, enables, shows and executes the control; null unbinds. The control takes all
  /// values of the action when it is bound and those that change afterwards (see TAction). The widget bears
  /// its name in the property "action", so that a script or a test finds it.
  TAction* Action() const { return action_; }
  void SetAction(TAction* action) final;
  /// Menu opened by the right mouse button, null: none. Not owned.
  TPopupMenu* PopupMenu() const;
  void SetPopupMenu(TPopupMenu* menu);
  /// Index of the picture that the control shows, -1: none.
  int ImageIndex() const override { return -1; }
  /// What a click does: OnClick, or the action when there is no OnClick. Nothing while disabled.
  virtual void Click();

  /// Runs for a click in place of the action.
  TNotifyEvent OnClick;
  /// Runs for the second of two quick clicks of the left button.
  TNotifyEvent OnDblClick;
  /// Runs when a button of the mouse goes down on the control.
  TMouseEvent OnMouseDown;
  /// Runs when the button is released, after OnClick.
  TMouseEvent OnMouseUp;

  /// Published properties (see properties.h).
  QString PublishedHint() const;
  void SetPublishedHint(const QString& hint);
  QString PublishedCaption() const;
  void SetPublishedCaption(const QString& caption);
  QObject* PublishedFont() const { return font_; }
  void SetPublishedFont(QObject* font);

 protected:
  explicit TControl(TComponent* owner);
  /// Takes the control's widget; called once, in a constructor. The control deletes it.
  void SetWidget(QWidget* widget);
  /// Watches a further widget inside the control for the control's events.
  void WatchWidget(QWidget* widget);
  /// Puts the caption on the widget.
  virtual void CaptionChanged() {}
  /// Puts the font on the widget.
  virtual void FontChanged();
  /// A control with a check takes the action's.
  void TakeChecked(bool) override {}
  /// A control with a picture takes the action's.
  void TakeImage(const TAction&) override {}
  /// An event of a watched widget; true: nobody else sees it.
  virtual bool WidgetEvent(QWidget* widget, QEvent* event);
  /// Whether a click of the left button is the control's Click (buttons report theirs by themselves).
  virtual bool ClicksByMouse() const { return true; }
  /// Whether mouse events end here instead of going on to the control's parent.
  virtual bool EndsMouseEvents() const { return false; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend class TWinControl;
  bool MouseEvent(QWidget* widget, QMouseEvent* event);

  QPointer<QWidget> widget_;
  std::vector<QPointer<QWidget>> watched_;
  TWinControl* parent_ = nullptr;
  TFont* font_;
  TAction* action_ = nullptr;
  QPointer<QObject> popupMenu_;
  std::string hint_;
  std::string caption_;
  TAlign align_ = alNone;
  bool visible_ = true;
  bool enabled_ = true;
  bool showHint_ = false;
  bool pressed_ = false;
};

/// A control that takes no focus and holds no others: labels, pictures, lines.
class TGraphicControl : public TControl {
  Q_OBJECT

 protected:
  explicit TGraphicControl(TComponent* owner) : TControl(owner) {}
  bool EndsMouseEvents() const override { return true; }
};
