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
  int ImageIndex() const override { return image_index_; }
  void SetImage(TImageList* images, int index);

 protected:
  explicit TbsSkinCustomButton(TComponent* owner) : TbsSkinControl(owner) {}
  /// Takes the button's widget and hears its clicks.
  void SetButton(QAbstractButton* button);
  QAbstractButton* Button() const;
  void CaptionChanged() override;
  void FontChanged() override;
  void TakeImage(const TAction& action) override;
  bool ClicksByMouse() const override { return false; }
  /// The user pressed the button.
  virtual void Pressed() { Click(); }

 private:
  int image_index_ = -1;
};

/// A push button. With a modal result other than 0 a press also ends its form's ShowModal with it.
class TbsSkinButton : public TbsSkinCustomButton {
  Q_OBJECT

 public:
  explicit TbsSkinButton(TComponent* owner);

  int ModalResult() const { return modal_result_; }
  void SetModalResult(int result) { modal_result_ = result; }
  void Click() override;
  /// Draws the button as the one that Return presses; TForm::SetDefaultButton calls it.
  void MarkDefault();

 protected:
  bool ReturnPressed() override {
    Click();
    return true;
  }

 private:
  int modal_result_ = 0;
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
  explicit TbsSkinCheckRadioBox(TComponent* owner, bool radio = false);

  bool Checked() const;
  /// Sets the check without running OnClick.
  void SetChecked(bool checked);
  bool Radio() const { return radio_; }

 protected:
  void TakeChecked(bool checked) override { SetChecked(checked); }

 private:
  bool radio_;
};
