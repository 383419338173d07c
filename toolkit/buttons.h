// What the user presses: push buttons, flat buttons, menu buttons, check boxes and radio buttons. Forms bind
// them to actions or to OnClick. Repeating buttons, groups that stay down and gauges of the original's
// buttons are not there.
#pragma once

#include <QPointer>

#include "toolkit/win_control.h"

class QAbstractButton;
class TImageList;
class TPopupMenu;

/// What all buttons share. OnClick runs for the user's press and for Click, not for changes made by code.
class TbsSkinCustomButton : public TbsSkinControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  /// Picture of the button: from the action's list, or given here; -1: none.
  int ImageIndex() const override { return imageIndex_; }
  /// Shows a picture of a list; null or an unknown index shows none.
  void SetImage(TImageList* images, int index);

 protected:
  explicit TbsSkinCustomButton(TComponent* owner) : TbsSkinControl(owner) {}
  /// Takes the button's widget, whose clicks become Pressed.
  void SetButton(QAbstractButton* button);
  QAbstractButton* Button() const;
  void CaptionChanged() override;
  void FontChanged() override;
  void TakeImage(const TAction& action) override;
  bool ClicksByMouse() const override { return false; }
  /// The user pressed the button.
  virtual void Pressed() { Click(); }

 private:
  int imageIndex_ = -1;
};

/// A push button. With a modal result other than 0 a press also ends its form's ShowModal with it.
class TbsSkinButton : public TbsSkinCustomButton {
  Q_OBJECT

 public:
  explicit TbsSkinButton(TComponent* owner);

  /// Result that a press ends ShowModal with, 0: none.
  int ModalResult() const { return modalResult_; }
  void SetModalResult(int result) { modalResult_ = result; }
  void Click() override;
  void MarkDefault() override;

 protected:
  bool IsButton() const override { return true; }
  bool ReturnPressed() override {
    Click();
    return true;
  }

 private:
  int modalResult_ = 0;
};

/// A flat button that takes no focus, for toolbars and the rows above lists.
class TbsSkinSpeedButton : public TbsSkinCustomButton {
  Q_OBJECT

 public:
  explicit TbsSkinSpeedButton(TComponent* owner);

 protected:
  QWidget* FocusWidget() const override { return nullptr; }
};

/// A push button that opens a menu below itself.
class TbsSkinMenuButton : public TbsSkinButton {
  Q_OBJECT

 public:
  explicit TbsSkinMenuButton(TComponent* owner);

  /// The menu, null: none. Not owned.
  TPopupMenu* SkinPopupMenu() const;
  void SetSkinPopupMenu(TPopupMenu* menu);
  /// Opens the menu, or does what a button does when there is none.
  void Click() override;

 private:
  QPointer<QObject> menu_;
};

/// A check box, or with Radio one of a group in the same parent. The user's click changes Checked before
/// OnClick.
class TbsSkinCheckRadioBox : public TbsSkinCustomButton {
  Q_OBJECT

 public:
  /// radio: a radio button instead of a check box.
  explicit TbsSkinCheckRadioBox(TComponent* owner, bool radio = false);

  /// Whether the box is ticked or the radio button chosen.
  bool Checked() const;
  /// Sets the check without running OnClick.
  void SetChecked(bool checked);
  /// Whether it is a radio button.
  bool Radio() const { return radio_; }

 protected:
  void TakeChecked(bool checked) override { SetChecked(checked); }

 private:
  bool radio_;
};
