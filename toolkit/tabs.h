#pragma once

#include <string>
#include <vector>

#include "toolkit/control.h"

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
  int PageCount() const { return static_cast<int>(pages_.size()); }
  TTabSheet* Pages(int index) const { return pages_.at(static_cast<std::size_t>(index)); }
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
  std::vector<TTabSheet*> pages_;
};

class TPageControl : public TCustomTabControl {
  Q_OBJECT

 public:
  explicit TPageControl(TComponent* owner) : TCustomTabControl(owner) {}
};
