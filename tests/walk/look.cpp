#include "tests/walk/look.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QImage>
#include <QLabel>
#include <functional>

#include "data/corvane.h"
#include "toolkit/buttons.h"
#include "toolkit/calendar.h"
#include "toolkit/combo_box.h"
#include "toolkit/edits.h"
#include "toolkit/form.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/list_box.h"
#include "toolkit/panels.h"
#include "toolkit/properties.h"
#include "toolkit/radio_group.h"
#include "toolkit/tree_view.h"

namespace {

constexpr const char* kAnyText = "1";  // every edit takes a digit

// Something that a control holds and shows.
struct Content {
  const char* what;
  std::function<void()> take;
  std::function<void()> give;
};

template <class Get, class Set>
void AddText(std::vector<Content>& contents, const char* what, Get get, Set set) {
  contents.push_back({what, [set] { set(""); }, [set, text = std::string(get())] { set(text); }});
}

void AddStrings(std::vector<Content>& contents, TStrings& strings) {
  if (strings.Count() == 0) return;
  const std::vector<std::string> all(strings.begin(), strings.end());
  const auto write = [&strings](const std::vector<std::string>& texts) {
    const TStringsUpdate update(strings);
    for (std::size_t i = 0; i < texts.size(); ++i) strings.SetStrings(i, texts[i]);
  };
  contents.push_back({"entries", [write, all] { write(std::vector<std::string>(all.size())); },
                      [write, all] { write(all); }});
}

void AddRows(std::vector<Content>& contents, TCustomListView* list) {
  if (list->ShowColumnHeaders()) {
    for (int i = 0; i < list->Columns().Count(); ++i) {
      TListColumn* column = list->Columns()[i];
      if (column->Hidden() || column->Caption().empty()) continue;
      AddText(
          contents, "first heading", [column] { return column->Caption(); },
          [column](const std::string& text) { column->SetCaption(text); });
      break;
    }
  }
  if (list->Items().Count() == 0) return;
  TListItem* item = list->Items()[0];
  if (corvane::Property* record = item->Data()) {
    auto* records = static_cast<TKVXCustomListView*>(list);
    contents.push_back({"first record", [=] { records->Modify(corvane::Property(), {}, item); },
                        [=, copy = corvane::Property(*record)] { records->Modify(copy, {}, item); }});
  } else {
    AddText(
        contents, "first row", [item] { return item->Caption(); },
        [item](const std::string& text) { item->SetCaption(text); });
  }
}

void AddPictures(std::vector<Content>& contents, QWidget* widget) {
  if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && !label->pixmap().isNull()) {
    contents.push_back({"picture", [label] { label->setPixmap({}); },
                        [label, picture = label->pixmap()] { label->setPixmap(picture); }});
  }
  if (auto* button = qobject_cast<QAbstractButton*>(widget); button != nullptr && !button->icon().isNull()) {
    contents.push_back({"picture", [button] { button->setIcon({}); },
                        [button, icon = button->icon()] { button->setIcon(icon); }});
  }
}

std::vector<Content> ContentsOf(TControl* control) {
  std::vector<Content> contents;
  if (control->Widget() == nullptr) return contents;
  if (IsPublishedProp(control, "Caption") && !control->Caption().empty()) {
    AddText(
        contents, "caption", [=] { return control->Caption(); },
        [=](const std::string& text) { control->SetCaption(text); });
  }
  if (auto* box = qobject_cast<TCustomComboBox*>(control); box != nullptr && box->ItemIndex() >= 0) {
    contents.push_back({"text", [box] { box->SetItemIndex(-1); },
                        [box, index = box->ItemIndex()] { box->SetItemIndex(index); }});
  } else if (auto* edit = qobject_cast<TCustomEdit*>(control)) {
    if (edit->Text().empty()) edit->SetText(kAnyText);
    AddText(
        contents, "text", [=] { return edit->Text(); },
        [=](const std::string& text) { edit->SetText(text); });
  } else if (auto* memo = qobject_cast<TMemo*>(control)) {
    if (memo->Text().empty()) memo->SetText(kAnyText);
    AddText(
        contents, "text", [=] { return memo->Text(); },
        [=](const std::string& text) { memo->SetText(text); });
  } else if (auto* group = qobject_cast<TbsSkinRadioGroup*>(control)) {
    AddStrings(contents, group->Items());
  } else if (auto* entries = qobject_cast<TKVXCustomListBox*>(control)) {
    AddStrings(contents, entries->Items());
  } else if (auto* list = qobject_cast<TCustomListView*>(control)) {
    AddRows(contents, list);
  } else if (auto* check = qobject_cast<TbsSkinCheckRadioBox*>(control)) {
    contents.push_back({"tick", [check] { check->SetChecked(!check->Checked()); },
                        [check] { check->SetChecked(!check->Checked()); }});
  } else if (auto* month = qobject_cast<TMonthCalendar*>(control)) {
    contents.push_back({"day", [month] { month->SetDate(month->Date() + 1); },
                        [month] { month->SetDate(month->Date() - 1); }});
  } else if (auto* tree = qobject_cast<TCustomTreeView*>(control); tree != nullptr && tree->RootCount() > 0) {
    TTreeNode* root = tree->Roots(0);
    AddText(
        contents, "root", [=] { return root->Text(); },
        [=](const std::string& text) { root->SetText(text); });
  }
  AddPictures(contents, control->Widget());
  return contents;
}

QImage Picture(QWidget* widget) {
  QImage image(widget->size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  widget->render(&image);
  return image;
}

std::string SizeText(const QSize& size) {
  return std::to_string(size.width()) + " x " + std::to_string(size.height());
}

class Look {
 public:
  std::vector<std::string> Faults(TForm* form) {
    Children(form);
    for (int i = 0; i < form->ComponentCount(); ++i) {
      const auto* control = qobject_cast<TControl*>(form->Components(i));
      if (control == nullptr || control->Parent() != nullptr ||
          qobject_cast<const TForm*>(control) != nullptr ||
          qobject_cast<const TbsSkinScrollBar*>(control) != nullptr)
        continue;
      Complain(control, "stands nowhere");
    }
    return faults_;
  }

 private:
  void Children(TWinControl* parent) {
    std::vector<TControl*> shown;
    for (int i = 0; i < parent->ControlCount(); ++i) {
      TControl* child = parent->Controls(i);
      if (!child->Visible() || child->Widget() == nullptr || !parent->ClientWidget()->isVisible()) continue;
      Place(parent, child);
      for (const TControl* other : shown) {
        if (other->Widget()->geometry().intersects(child->Widget()->geometry()))
          Complain(child, "overlaps " + other->Name());
      }
      shown.push_back(child);
      Contents(child);
      if (auto* container = qobject_cast<TWinControl*>(child)) Children(container);
    }
  }

  void Place(const TWinControl* parent, const TControl* child) {
    const QWidget* widget = child->Widget();
    if (!widget->isVisible()) Complain(child, "isn't shown");
    if (!parent->ClientWidget()->rect().contains(widget->geometry()))
      Complain(child, "stands outside its parent");
    // What scrolls, or is cut on purpose and shows whole in its hint, does with less.
    if (qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) return;
    QSize needed = widget->minimumSizeHint().boundedTo(widget->maximumSize());
    if (widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) needed.setWidth(0);
    const auto* container = qobject_cast<const TWinControl*>(child);
    if (container != nullptr && container->ControlCount() > 0) return;
    if (widget->width() < needed.width() || widget->height() < needed.height())
      Complain(child, "needs " + SizeText(needed) + " and has " + SizeText(widget->size()));
  }

  void Contents(TControl* control) {
    for (const Content& content : ContentsOf(control)) {
      const QImage with = Picture(control->Widget());
      content.take();
      const QImage without = Picture(control->Widget());
      content.give();
      if (with == without) Complain(control, std::string("draws the same without its ") + content.what);
    }
  }

  void Complain(const TControl* control, const std::string& what) {
    faults_.push_back(control->ClassName() + " " + control->Name() + " " + what);
  }

  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> FaultsOf(TForm* form) {
  return Look().Faults(form);
}
