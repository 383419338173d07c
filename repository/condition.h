// The conditions of a query screen as a table. One line tells all that varies: control, caption, place, input
// rule, when it is emptied, and the field of the request; everything that is done with conditions goes over
// the table.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "data/corvane.h"
#include "toolkit/edits.h"
#include "toolkit/layout.h"

class TBaseForm;
class TKVXComboBox;
class TKVXDateTime;
class TKVXListBox;
class TLabel;
class TbsSkinExPanel;

namespace norvik {

// What may be typed.
inline constexpr TKVXInputRule kAmountInput = {ikCurrency, 16, 13, 2};
constexpr TKVXInputRule TextInput(int bytes) {
  return {ikLettersDigitsChinese, bytes, 0, 0};
}
constexpr TKVXInputRule DigitsInput(int bytes) {
  return {ikDigits, bytes, 0, 0};
}

enum class ConditionPanel { kNormal, kAdvance };
enum class Emptied { kNever, kAtShow, kAtClose };

// A place in a panel's grid: row, and which of its fields from left to right, both from 0; rows downward.
struct ConditionCell {
  int row = 0;
  int field = 0;
  int rows = 1;
};

struct Condition {
  // The screen's member that takes the control; its type decides the kind of condition.
  std::variant<TKVXComboBox**, TKVXListBox**, TKVXEdit**, TKVXDateTime**> control;
  const char* name = "";           // of the control
  const char* labelName = "";      // of its caption
  const char* captionKey = "";     // empty: the design caption stays
  const char* designCaption = "";  // UTF-8
  const char* starName = "";       // of the red "*" beside it; empty: none
  ConditionPanel panel = ConditionPanel::kNormal;
  ConditionCell cell = {};
  TKVXInputRule input = {};           // of a text
  Emptied emptied = Emptied::kNever;  // of a text or a date
  const char* field = "";             // of the request; empty: the screen sends it in its own way
  const char* noChoice = "";          // what a combo box sends for the key of no choice
  bool trimmed = false;               // a text goes out without the blanks round it
};

class ConditionTable {
 public:
  ConditionTable() = default;
  explicit ConditionTable(std::vector<Condition> conditions) : conditions_(std::move(conditions)) {}

  // Makes the controls of one panel in table order, which is their tab order, and lays them out in a grid of
  // kFields fields a row; each field is three cells: caption, control, "*". The grid is given back for what
  // else belongs there.
  TGridLayout Build(TBaseForm* form, TbsSkinExPanel* panel, ConditionPanel which) const;

  // Gives the captions their keys.
  void SetCaptions(const TBaseForm* form) const;

  // Empties the texts and dates that are emptied then.
  void Empty(Emptied when) const;

  // Sets a field of the request for each condition that has one; those of the advanced panel are empty when
  // it is rolled up, whatever they hold.
  void AddFields(corvane::Row& fields, bool advanceRolledUp) const;

  static constexpr int kFields = 3;
  static constexpr int kCellsOfField = 3;

 private:
  std::vector<Condition> conditions_;
};

}  // namespace norvik
