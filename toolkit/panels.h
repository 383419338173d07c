// What holds other controls or frames a form: panels, groups, roll-up panels, scroll boxes, tool and status
// bars. Docking, splitting and the pictures of the original's bars are not there; pages with tabs are in
// tabs.h.
#pragma once

#include <QAbstractScrollArea>
#include <QPointer>
#include <string>

#include "toolkit/string_list.h"
#include "toolkit/win_control.h"

class QLabel;
class QScrollArea;
class QScrollBar;
class QToolButton;

/// A plain container.
class TPanel : public TWinControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  explicit TPanel(TComponent* owner);

 protected:
  bool EndsMouseEvents() const override { return true; }
  QWidget* FocusWidget() const override { return nullptr; }
};

/// A container that shows its caption, when it has one, as a heading above what it holds.
class TbsSkinPanel : public TbsSkinControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  explicit TbsSkinPanel(TComponent* owner);
  QWidget* ClientWidget() const override { return client_; }

  /// Whether a line is drawn round the panel; off at the start.
  void SetBordered(bool bordered);

 protected:
  bool EndsMouseEvents() const override { return true; }
  void CaptionChanged() override;
  void FontChanged() override;
  QWidget* FocusWidget() const override { return nullptr; }

 private:
  QLabel* heading_;
  QPointer<QWidget> client_;
};

/// A framed group with a caption.
class TbsSkinGroupBox : public TbsSkinControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  explicit TbsSkinGroupBox(TComponent* owner);

 protected:
  void CaptionChanged() override;
  QWidget* FocusWidget() const override { return nullptr; }
};

/// A panel below a header with its caption. A click on the header, or Space or Return while it has the focus,
/// rolls the panel up to the header or opens it again; the controls inside keep their own Visible.
class TbsSkinExPanel : public TbsSkinControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  explicit TbsSkinExPanel(TComponent* owner);
  QWidget* ClientWidget() const override { return client_; }

  /// True: rolled up.
  bool RollState() const { return rolledUp_; }
  /// Rolls up or opens without running OnChangeRollState.
  void SetRollState(bool rolledUp);

  /// Height of the open panel, also when it is set while the panel is rolled up.
  void SetHeight(int height) override;

  /// Runs after the user has rolled the panel up or opened it.
  TNotifyEvent OnChangeRollState;

 protected:
  void CaptionChanged() override;
  void FontChanged() override;
  QWidget* FocusWidget() const override;
  bool WantsReturn() const override { return true; }
  bool ReturnPressed() override;
  bool HeadsOthers() const override { return true; }
  bool ClicksByMouse() const override { return false; }

 private:
  void ShowState();

  QToolButton* header_;
  QPointer<QWidget> client_;
  bool rolledUp_ = false;
  int openHeight_ = 0;
};

/// A container that asks for the size of what it holds, and scrolls where it gets less. A control in it that
/// gets the focus is scrolled into sight.
class TbsSkinScrollBox : public TbsSkinControl {
  Q_OBJECT

 public:
  explicit TbsSkinScrollBox(TComponent* owner);
  QWidget* ClientWidget() const override { return client_; }
  /// Whether the box is at least as wide as what it holds, as far as the screen allows; off at the start.
  void SetKeepsWidth(bool keeps);

 protected:
  QWidget* FocusWidget() const override { return nullptr; }

 private:
  QPointer<QWidget> client_;
};

/// A scroll bar for a scrolling control, which shows it when it needs it.
class TbsSkinScrollBar : public TbsSkinControl {
  Q_OBJECT

 public:
  explicit TbsSkinScrollBar(TComponent* owner, TScrollBarKind kind = sbVertical);
  ~TbsSkinScrollBar() override;

  /// Direction of the bar.
  TScrollBarKind Kind() const { return kind_; }
  /// Becomes the scroll bar of a list, tree, memo or scroll box; with any other control nothing happens.
  void AttachTo(TWinControl* control);

 protected:
  QWidget* FocusWidget() const override { return nullptr; }

 private:
  void GiveTo(QAbstractScrollArea* area, QScrollBar* bar) const;

  TScrollBarKind kind_;
  QPointer<QAbstractScrollArea> area_;
};

/// A strip for buttons, laid out from left to right in the order in which they come.
class TbsSkinToolBar : public TbsSkinControl {
  Q_OBJECT

 public:
  explicit TbsSkinToolBar(TComponent* owner);
  /// Appends a button, or a separating line for null.
  void Add(TControl* control);

 protected:
  QWidget* FocusWidget() const override { return nullptr; }
};

/// A strip at the lower edge of a form, for status panels.
class TbsSkinStatusBar : public TbsSkinControl {
  Q_OBJECT

 public:
  explicit TbsSkinStatusBar(TComponent* owner);
  /// Appends a panel; it takes a share of the width by its stretch.
  void Add(TControl* panel, int stretch = 1);

 protected:
  QWidget* FocusWidget() const override { return nullptr; }
};

/// A text in a status bar; the same object in all respects as a label with a sunken look.
class TbsSkinStatusPanel : public TbsSkinControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  explicit TbsSkinStatusPanel(TComponent* owner);

 protected:
  void CaptionChanged() override;
  QWidget* FocusWidget() const override { return nullptr; }
};
