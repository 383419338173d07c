#pragma once

#include <string>

#include "toolkit/win_control.h"

class QTabWidget;

/// A page of a tab control.
class TTabSheet : public TWinControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  explicit TTabSheet(TComponent* owner);

 protected:
  void CaptionChanged() override;
  QWidget* FocusWidget() const override { return nullptr; }
};

/// Pages behind a row of tabs.
class TCustomTabControl : public TbsSkinControl {
  Q_OBJECT

 public:
  int PageCount() const;
  TTabSheet* Pages(int index) const;
  /// Appends a page; the tab shows its caption.
  void AddPage(TTabSheet* page);
  int ActivePageIndex() const;
  /// Shows a page; an index out of range changes nothing.
  void SetActivePageIndex(int index);

 protected:
  explicit TCustomTabControl(TComponent* owner);
  bool ClicksByMouse() const override { return false; }

 private:
  friend class TTabSheet;
  QTabWidget* Tabs() const;
};

class TPageControl : public TCustomTabControl {
  Q_OBJECT

 public:
  explicit TPageControl(TComponent* owner) : TCustomTabControl(owner) {}
};
