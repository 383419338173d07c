// The conditions of a query screen as a table. One line states all that varies: control, caption, place,
// input rule, when it is emptied, and the field of the request; layout, captions, reset and request run over
// the table. The checks are the screen's.
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

/// What may be typed into an amount.
inline constexpr TKVXInputRule kAmountInput = {ikCurrency, 16, 13, 2};
/// What may be typed into a text and into a number, both of at most that many bytes.
constexpr TKVXInputRule TextInput(int bytes) {
  return {ikLettersDigitsChinese, bytes, 0, 0};
}
constexpr TKVXInputRule DigitsInput(int bytes) {
  return {ikDigits, bytes, 0, 0};
}

/// The panel that a condition is in.
enum class ConditionPanel { kNormal, kAdvance };
/// When a text or a date is emptied.
enum class Emptied { kNever, kAtShow, kAtClose };

/// A place in a panel's grid: row, and which of its fields from left to right, both from 0; rows downward.
struct ConditionCell {
  int row = 0;
  int field = 0;
  int rows = 1;
};

/// One condition: a line of the table.
struct Condition {
  /// The screen's member that receives the control; its type decides the kind of condition.
  std::variant<TKVXComboBox**, TKVXListBox**, TKVXEdit**, TKVXDateTime**> control;
  const char* name = "";           ///< of the control
  const char* labelName = "";      ///< of its caption
  const char* captionKey = "";     ///< empty: the design caption stays
  const char* designCaption = "";  ///< UTF-8
  const char* starName = "";       ///< of the red "*" beside it; empty: none
  ConditionPanel panel = ConditionPanel::kNormal;
  ConditionCell cell = {};
  TKVXInputRule input = {};           ///< of a text
  Emptied emptied = Emptied::kNever;  ///< of a text or a date
  const char* field = "";             ///< of the request; empty: the screen sends it itself
  const char* noChoice = "";          ///< what a combo box sends for the key of no choice
  bool trimmed = false;               ///< a text is sent without leading and trailing blanks
};

/// The conditions of one screen; their controls belong to the screen.
class ConditionTable {
 public:
  ConditionTable() = default;
  explicit ConditionTable(std::vector<Condition> conditions) : conditions_(std::move(conditions)) {}

  /// Makes the controls of one panel in table order, which is their tab order, in a grid of kFields fields a
  /// row; each field is three cells: caption, control, "*". Returns the grid for what else belongs there.
  TGridLayout Build(TBaseForm* form, TbsSkinExPanel* panel, ConditionPanel which) const;

  /// Sets the captions to their keys.
  void SetCaptions(const TBaseForm* form) const;

  /// Empties the texts and dates that are emptied at that moment.
  void Empty(Emptied when) const;

  /// Sets a field of the request for each condition that has one; those of the advanced panel are empty while
  /// it is rolled up, whatever they contain.
  void AddFields(corvane::Row& fields, bool advanceRolledUp) const;

  static constexpr int kFields = 3;
  static constexpr int kCellsOfField = 3;

 private:
  std::vector<Condition> conditions_;
};

}  // namespace norvik
