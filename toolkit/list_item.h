// The rows of a list view as forms see them: handles to texts, tick, selection and record of a row. Where the
// rows are stored and how they reach the screen is list_model.h's matter. Icons, indents and columns'
// pictures of the original's items are not there.
#pragma once

#include <string>

class TListModel;
struct TListRow;

namespace corvane {
class Property;
}  // namespace corvane

/// A row of a list view: a small handle that stays the same while the row lives. In a row with a record the
/// text of a column with a column id is the record's field.
class TListItem {
 public:
  /// For the row itself.
  TListItem(TListModel* model, TListRow* row) : model_(model), row_(row) {}

  /// Text of the first column.
  std::string Caption() const;
  void SetCaption(const std::string& caption);
  /// Texts of the columns after the first; one that isn't there reads as empty.
  std::string SubItems(int index) const;
  /// Sets the text of a column after the first; std::out_of_range below 0.
  void SetSubItems(int index, const std::string& text);
  /// Number of the texts after the first.
  int SubItemCount() const;
  /// Sets the text after the last.
  void AddSubItem(const std::string& text);
  /// Whether the row is ticked.
  bool Checked() const;
  /// Ticks or unticks the row without running OnItemCheck.
  void SetChecked(bool checked);
  /// Whether the row is the selected one.
  bool Selected() const;
  /// Selects the row in place of another, or no row when it is the selected one.
  void SetSelected(bool selected);
  /// Whether the row has the focus rectangle.
  bool Focused() const;
  /// Gives the row the focus rectangle, or takes it off.
  void SetFocused(bool focused);
  /// One state by its index: 2 is focused, 3 selected; others have no effect.
  void SetState(int index, bool on);
  /// Position in the list, from 0; changes when rows before it go.
  int Index() const;
  /// The record of the row in a KVX list view, null elsewhere; the view owns it.
  corvane::Property* Data() const;
  /// Takes the row out of the list; the handle is gone afterwards.
  void Delete();

 private:
  TListModel* model_;
  TListRow* row_;
};

/// The rows of a list view, counted from 0.
class TListItems {
 public:
  /// For the list view.
  explicit TListItems(TListModel* model) : model_(model) {}

  /// Number of the rows.
  int Count() const;
  /// The row at an index; std::out_of_range when there is none.
  TListItem* Item(int index) const;
  TListItem* operator[](int index) const { return Item(index); }
  /// Appends an empty row and returns it.
  TListItem* Add();
  /// Inserts an empty row before an index, at most Count, and returns it; std::out_of_range beyond.
  TListItem* Insert(int index);
  /// Deletes a row, after taking selection and focus rectangle off it; std::out_of_range when there is none.
  void Delete(int index);
  /// Deletes all rows.
  void Clear();

 private:
  TListModel* model_;
};
