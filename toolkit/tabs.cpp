#include "toolkit/tabs.h"

#include <QTabWidget>

#include "toolkit/text.h"

TTabSheet::TTabSheet(TComponent* owner) : TWinControl(owner) {
  SetWidget(new QWidget);
}

void TTabSheet::CaptionChanged() {
  const auto* tabs = qobject_cast<TCustomTabControl*>(Parent());
  if (tabs == nullptr || tabs->Tabs() == nullptr) return;
  tabs->Tabs()->setTabText(tabs->Tabs()->indexOf(Widget()), ToQt(Caption()));
}

TCustomTabControl::TCustomTabControl(TComponent* owner) : TbsSkinControl(owner) {
  SetWidget(new QTabWidget);
  SetTabStop(true);
}

QTabWidget* TCustomTabControl::Tabs() const {
  return static_cast<QTabWidget*>(Widget());
}

int TCustomTabControl::PageCount() const {
  return ControlCount();
}

TTabSheet* TCustomTabControl::Pages(int index) const {
  return static_cast<TTabSheet*>(Controls(index));
}

void TCustomTabControl::AddPage(TTabSheet* page) {
  page->SetParent(this);
  if (Tabs() != nullptr) Tabs()->addTab(page->Widget(), ToQt(page->Caption()));
}

int TCustomTabControl::ActivePageIndex() const {
  return Tabs() == nullptr ? -1 : Tabs()->currentIndex();
}

void TCustomTabControl::SetActivePageIndex(int index) {
  if (Tabs() != nullptr) Tabs()->setCurrentIndex(index);
}
