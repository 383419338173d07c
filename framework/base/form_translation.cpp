#include "framework/base/form_translation.h"

#include <string>

#include "framework/base/base_form.h"
#include "toolkit/action.h"
#include "toolkit/combo_box.h"
#include "toolkit/form.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/menu.h"
#include "toolkit/properties.h"
#include "toolkit/tabs.h"
#include "toolkit/tree_view.h"

namespace {

constexpr const char* kNoText = "-";  // caption of separators, which are left alone

std::string Translated(const std::string& key) {
  return TBaseForm::TranslateKey(key);
}

void TranslateProperty(TObject* object, const char* name) {
  if (IsPublishedProp(object, name)) SetStrProp(object, name, Translated(GetStrProp(object, name)));
}

// The skin sets the colour of the text; the host's font and the form's sizes are left alone.
void SetSkinFlags(TObject* control) {
  constexpr struct {
    const char* name;
    bool value;
  } kFlags[] = {{"UseSkinFont", false}, {"UseSkinFontColor", true}, {"UseSkinSize", false}};
  for (const auto& flag : kFlags) {
    if (IsPublishedProp(control, flag.name)) SetPropValue(control, flag.name, flag.value);
  }
}

void TranslateLabelCaption(TControl* label) {
  const std::string caption = GetStrProp(label, "Caption");
  if (caption.empty() || caption.back() != ':') SetStrProp(label, "Caption", Translated(caption) + ":");
}

void TranslateGraphicControl(TControl* control) {
  if (control->Tag() == kLabelMark && IsPublishedProp(control, "Caption")) {
    TranslateLabelCaption(control);
  } else {
    TranslateProperty(control, "Caption");
  }
  TranslateProperty(control, "Text");
  TranslateProperty(control, "Hint");
  SetSkinFlags(control);
}

void TranslateNode(TTreeNode* node) {
  node->SetText(Translated(node->Text()));
  for (int i = 0; i < node->Count(); ++i) TranslateNode(node->Items(i));
}

void TranslateItems(TWinControl* control) {
  if (auto* list = qobject_cast<TCustomListView*>(control)) {
    for (int i = 0; i < list->Columns().Count(); ++i) {
      TListColumn* column = list->Columns().Items(i);
      column->SetCaption(Translated(column->Caption()));
    }
  }
  if (auto* tabs = qobject_cast<TCustomTabControl*>(control)) {
    for (int i = 0; i < tabs->PageCount(); ++i) {
      TTabSheet* page = tabs->Pages(i);
      page->SetCaption(Translated(page->Caption()));
      page->SetHint(Translated(page->Hint()));
    }
  }
  if (auto* combo = qobject_cast<TCustomComboBox*>(control)) {
    TStrings& items = combo->Items();
    const TStringsUpdate update(items);
    for (std::size_t i = 0; i < items.Count(); ++i) items.SetStrings(i, Translated(items.Strings(i)));
  }
  if (auto* tree = qobject_cast<TCustomTreeView*>(control)) {
    for (int i = 0; i < tree->RootCount(); ++i) TranslateNode(tree->Roots(i));
  }
}

void TranslateControls(TWinControl* parent) {
  for (int i = 0; i < parent->ControlCount(); ++i) {
    TControl* child = parent->Controls(i);
    if (auto* windowed = qobject_cast<TWinControl*>(child)) {
      TranslateControls(windowed);
    } else {
      TranslateGraphicControl(child);
    }
  }
  TranslateProperty(parent, "Caption");
  // The text of a box is that of its chosen entry; translated as an entry it remains the chosen one even when
  // another entry has the same text.
  if (qobject_cast<TCustomComboBox*>(parent) == nullptr) TranslateProperty(parent, "Text");
  TranslateProperty(parent, "Hint");
  TranslateItems(parent);
  SetSkinFlags(parent);
}

void TranslateActions(TCustomActionList& list) {
  for (int i = 0; i < list.ActionCount(); ++i) {
    TAction* action = list.Actions(i);
    if (action->Caption() == kNoText) continue;
    action->SetCaption(Translated(action->Caption()));
    action->SetHint(Translated(action->Hint()));
  }
}

void TranslateMenuItems(TMenuItem* parent) {
  for (int i = 0; i < parent->Count(); ++i) {
    TMenuItem* item = parent->Items(i);
    if (item->Caption() != kNoText) item->SetCaption(Translated(item->Caption()));
    TranslateMenuItems(item);
  }
}

void TranslateComponents(TForm& form) {
  for (int i = 0; i < form.ComponentCount(); ++i) {
    TComponent* component = form.Components(i);
    if (auto* actions = qobject_cast<TCustomActionList*>(component)) TranslateActions(*actions);
    auto* menu = qobject_cast<TMenu*>(component);
    if (menu != nullptr && IsPublishedProp(menu, "Items")) TranslateMenuItems(menu->Items());
  }
}

}  // namespace

void TranslateForm(TForm& form) {
  TranslateControls(&form);
  TranslateComponents(form);
}
