// Pages of which one shows at a time, chosen by tabs, for forms with more than fits on one page. Closing,
// moving and drawing tabs are not there.
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

/// Pages under a row of tabs.
class TCustomTabControl : public TbsSkinControl {
  Q_OBJECT

 public:
  /// Number of the pages.
  int PageCount() const;
  /// A page by its place, from 0; std::out_of_range when there is none.
  TTabSheet* Pages(int index) const;
  /// Appends a page; the tab shows its caption.
  void AddPage(TTabSheet* page);
  /// Place of the page that shows, -1: none.
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

/// The pages that a form holds.
class TPageControl : public TCustomTabControl {
  Q_OBJECT

 public:
  explicit TPageControl(TComponent* owner) : TCustomTabControl(owner) {}
};
