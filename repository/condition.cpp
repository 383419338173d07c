#include "repository/condition.h"

#include "framework/base/base_form.h"
#include "framework/business/query_common.h"
#include "toolkit/combo_box.h"
#include "toolkit/date_edit.h"
#include "toolkit/labels.h"
#include "toolkit/list_box.h"
#include "toolkit/panels.h"
#include "toolkit/text.h"

namespace norvik {
namespace {

constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr int kControlWidth = 130;

bool Has(const char* text) {
  return *text != '\0';
}

TWinControl* ControlOf(const Condition& condition) {
  return std::visit([](auto** control) -> TWinControl* { return *control; }, condition.control);
}

template <class Control>
TWinControl* MakeControl(TBaseForm* form, const Condition& condition, Control** control) {
  *control = NewComponent<Control>(form, condition.name);
  if constexpr (std::is_same_v<Control, TKVXEdit>) (*control)->SetInputRule(condition.input);
  if constexpr (std::is_same_v<Control, TKVXDateTime>) {
    (*control)->SetDateTimeForm(
        [form](const std::string& text, TKVXDateType type) { return form->ShowDateCalendar(text, type); });
    (*control)->SetLabelCaption({});
  }
  return *control;
}

TLabel* MakeLabel(TBaseForm* form, const char* name, const std::string& caption) {
  TLabel* label = NewComponent<TLabel>(form, name);
  label->SetCaption(caption);
  return label;
}

// What a condition sends.
struct SentText {
  const Condition& condition;

  std::string operator()(TKVXComboBox** combo) const {
    const std::string key = (*combo)->GetKey();
    return key == kNoChoiceKey ? condition.noChoice : key;
  }
  std::string operator()(TKVXListBox** list) const { return (*list)->GetSelectedKeys().toString("|", false); }
  std::string operator()(TKVXEdit** edit) const {
    return condition.trimmed ? corvane::trim((*edit)->Text()) : (*edit)->Text();
  }
  std::string operator()(TKVXDateTime** date) const { return (*date)->Text(); }
};

}  // namespace

TGridLayout ConditionTable::Build(TBaseForm* form, TbsSkinExPanel* panel, ConditionPanel which) const {
  TGridLayout grid(panel);
  grid.SetMargins(kMargin, kMargin, kMargin, kMargin);
  grid.SetSpacing(kGap);
  for (int field = 0; field < kFields; ++field) {
    grid.SetColumnStretch(field * kCellsOfField + 1, 1);
    grid.SetColumnMinimum(field * kCellsOfField + 1, kControlWidth);
  }
  int tabOrder = 0;
  for (const Condition& condition : conditions_) {
    if (condition.panel != which) continue;
    const auto [row, field, rows] = condition.cell;
    const int column = field * kCellsOfField;
    TLabel* label = MakeLabel(form, condition.labelName, Ansi(condition.designCaption));
    TWinControl* control =
        std::visit([&](auto** slot) { return MakeControl(form, condition, slot); }, condition.control);
    grid.Put(label, row, column, 1, 1, caRight);
    grid.Put(control, row, column + 1, rows, 1);
    control->SetTabOrder(tabOrder++);
    if (!Has(condition.starName)) continue;
    TLabel* star = MakeLabel(form, condition.starName, "*");
    star->Font()->SetColor(clRed);
    grid.Put(star, row, column + 2, 1, 1, caLeft);
  }
  return grid;
}

void ConditionTable::SetCaptions(const TBaseForm* form) const {
  for (const Condition& condition : conditions_) {
    if (!Has(condition.captionKey)) continue;
    if (auto* label = dynamic_cast<TLabel*>(form->FindComponent(condition.labelName))) {
      label->SetCaption(condition.captionKey);
    }
  }
}

void ConditionTable::Empty(Emptied when) const {
  for (const Condition& condition : conditions_) {
    if (condition.emptied != when) continue;
    if (auto* edit = dynamic_cast<TCustomEdit*>(ControlOf(condition))) edit->Clear();
  }
}

void ConditionTable::AddFields(corvane::Row& fields, bool advanceRolledUp) const {
  for (const Condition& condition : conditions_) {
    if (!Has(condition.field)) continue;
    const bool off = advanceRolledUp && condition.panel == ConditionPanel::kAdvance;
    fields[condition.field] = off ? std::string() : std::visit(SentText{condition}, condition.control);
  }
}

}  // namespace norvik
