#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/control.h"

class QMouseEvent;
class TCustomListView;
class TListItems;
class TListModel;
class TListTree;
struct TListRow;

namespace corvane {
class List;
class Property;
class StringVector;
}  // namespace corvane

/// A column of a list view. MaxWidth 1 hides it from the user; so does width 0. The user can't drag a hidden
/// column open, nor a column out of its bounds.
class TListColumn : public TObject {
  Q_OBJECT

 public:
  std::string Caption() const { return caption_; }
  void SetCaption(const std::string& caption);
  /// Width in pixels, brought within MinWidth and MaxWidth where these aren't 0; 50 at the start.
  int Width() const { return width_; }
  void SetWidth(int width);
  int MinWidth() const { return min_width_; }
  void SetMinWidth(int width);
  /// Greatest width, 0: no limit. With 1 the column reads as 1 or 0 wide.
  int MaxWidth() const { return max_width_; }
  void SetMaxWidth(int width);
  TAlignment Alignment() const { return alignment_; }
  void SetAlignment(TAlignment alignment);
  /// Whether the column is hidden.
  bool Hidden() const { return max_width_ == 1 || width_ == 0; }
  /// Display format of the cells: 2 amount, shown with thousands separators and two decimals; 4 number, shown
  /// with thousands separators and the decimals that it has; 5 text at the right edge; all others the text as
  /// it stands. A text that is no number stands as it is. The record isn't changed by it.
  int Tag() const { return tag_; }
  void SetTag(int tag);
  /// Position among the columns, from 0.
  int Index() const;
  /// Identity in the collection, never given twice while the list view lives.
  int ID() const { return id_; }

 private:
  friend class TListColumns;
  friend class TCustomListView;
  TListColumn(TCustomListView* view, int id) : view_(view), id_(id) {}
  int Bounded(int width) const;
  void Changed();

  TCustomListView* view_;
  std::string caption_;
  int id_;
  int width_ = 50;
  int min_width_ = 0;
  int max_width_ = 0;
  int tag_ = 0;
  TAlignment alignment_ = taLeftJustify;
};

/// The columns of a list view, in their present order; a column that the user drags to another place changes
/// its place here.
class TListColumns {
 public:
  int Count() const { return static_cast<int>(columns_.size()); }
  /// std::out_of_range when there is none.
  TListColumn* Items(int index) const { return columns_.at(static_cast<std::size_t>(index)).get(); }
  TListColumn* operator[](int index) const { return Items(index); }
  /// Appends a column.
  TListColumn* Add();
  void Clear();
  /// The column of an identity, null when it is gone.
  TListColumn* FindItemID(int id) const;

 private:
  friend class TCustomListView;
  explicit TListColumns(TCustomListView* view) : view_(view) {}

  TCustomListView* view_;
  std::vector<std::unique_ptr<TListColumn>> columns_;
  int next_id_ = 0;
};

/// A row of a list view: a small handle that stays the same while the row lives. In a row with a record the
/// text of a column with a column id is the record's field.
class TListItem {
 public:
  /// Text of the first column.
  std::string Caption() const;
  void SetCaption(const std::string& caption);
  /// Texts of the columns behind the first; one that isn't there reads as empty.
  std::string SubItems(int index) const;
  void SetSubItems(int index, const std::string& text);
  int SubItemCount() const;
  void AddSubItem(const std::string& text);
  bool Checked() const;
  /// Ticks or unticks the row without running OnItemCheck.
  void SetChecked(bool checked);
  bool Selected() const;
  void SetSelected(bool selected);
  bool Focused() const;
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
  friend struct TListRow;
  friend class TListModel;
  TListItem(TListModel* model, TListRow* row) : model_(model), row_(row) {}

  TListModel* model_;
  TListRow* row_;
};

/// The rows of a list view, counted from 0.
class TListItems {
 public:
  int Count() const;
  /// The row at an index; std::out_of_range when there is none.
  TListItem* Item(int index) const;
  TListItem* operator[](int index) const { return Item(index); }
  TListItem* Add();
  /// Inserts an empty row before an index, at most Count.
  TListItem* Insert(int index);
  void Delete(int index);
  void Clear();

 private:
  friend class TCustomListView;
  explicit TListItems(TListModel* model) : model_(model) {}
  TListModel* model_;
};

enum TViewStyle { vsIcon, vsSmallIcon, vsList, vsReport };

/// A list of rows in columns with a check box for each row, of which one or none is selected. OnItemCheck
/// runs when the user ticks or unticks a row, on its box or with the space key. OnSelectItem runs also when
/// the selection is changed by code, for the row that loses it first, and before a selected row is deleted.
/// Mouse events run when the list has done what the mouse asks for, so OnMouseUp sees the new tick.
class TCustomListView : public TbsSkinControl {
  Q_OBJECT

 public:
  ~TCustomListView() override;

  TListColumns& Columns() { return columns_; }
  const TListColumns& Columns() const { return columns_; }
  TListItems& Items() { return items_; }
  const TListItems& Items() const { return items_; }
  /// The selected row, null: none.
  TListItem* Selected() const;
  void SetSelected(TListItem* item);
  /// Index of the selected row, -1: none.
  int ItemIndex() const;
  int GetItemIndex() const { return ItemIndex(); }
  /// Selects a row, gives it the focus rectangle and scrolls to it; an index out of range selects none.
  void SetItemIndex(int index);
  /// The row that has the focus rectangle, null: none.
  TListItem* ItemFocused() const;
  void SetItemFocused(TListItem* item);
  /// The row at a point of the control, null: none.
  TListItem* GetItemAt(int x, int y) const;
  /// Removes all rows; the columns stay.
  virtual void Clear();

  /// Only the report style is drawn.
  TViewStyle ViewStyle() const { return view_style_; }
  void SetViewStyle(TViewStyle style) { view_style_ = style; }
  bool Checkboxes() const { return checkboxes_; }
  void SetCheckboxes(bool on);
  bool GridLines() const { return grid_lines_; }
  void SetGridLines(bool on);
  /// Kept for the forms; a selected row is always marked over its whole width.
  bool RowSelect() const { return row_select_; }
  void SetRowSelect(bool on) { row_select_ = on; }
  /// Kept for the forms; texts are never edited in place.
  bool ReadOnly() const { return read_only_; }
  void SetReadOnly(bool on) { read_only_ = on; }
  /// Whether the selection shows only with the focus.
  bool HideSelection() const { return hide_selection_; }
  void SetHideSelection(bool on);
  /// Kept for the forms; the user may always drag a column by its header to another place.
  bool FullDrag() const { return full_drag_; }
  void SetFullDrag(bool on) { full_drag_ = on; }
  bool ShowColumnHeaders() const { return show_column_headers_; }
  void SetShowColumnHeaders(bool on);

  std::function<void(TObject* sender, TListItem* item, bool selected)> OnSelectItem;
  std::function<void(TObject* sender, TListItem* item)> OnItemCheck;

 protected:
  explicit TCustomListView(TComponent* owner);
  bool WidgetEvent(QWidget* widget, QEvent* event) override;
  void FontChanged() override;
  TListModel* Model() const { return model_; }
  /// The Qt view, null once it has been deleted from outside.
  TListTree* Tree() const;
  /// The user dragged the column at an index to another one.
  virtual void ColumnMoved(int from, int to);

 private:
  friend class TListColumn;
  friend class TListColumns;
  friend class TListModel;
  friend class TListTree;
  void ConnectHeader();
  void ShowColumn(int index);
  void SectionResized(int index, int width);
  void SectionMoved(int from, int to);
  void TreeMouse(QMouseEvent* event);
  void UserChecked(TListItem* item);
  void ReportSelection(int row, bool selected);

  TListModel* model_;
  TListColumns columns_;
  TListItems items_;
  TViewStyle view_style_ = vsReport;
  bool checkboxes_ = false;
  bool grid_lines_ = false;
  bool row_select_ = false;
  bool read_only_ = false;
  bool hide_selection_ = true;
  bool full_drag_ = false;
  bool show_column_headers_ = true;
  bool arranging_ = false;
};

class TListView : public TCustomListView {
  Q_OBJECT

 public:
  explicit TListView(TComponent* owner) : TCustomListView(owner) {}
};

/// A list view that owns a record for each row. Cells are read from the record by the column ids when they
/// are painted; a record whose field Color is a number is drawn in that colour, as TColor counts.
class TKVXCustomListView : public TCustomListView {
  Q_OBJECT

 public:
  /// Name of the record's field that each column shows, in the order of Columns.
  corvane::StringVector& ColumnIds() { return *column_ids_; }
  const corvane::StringVector& ColumnIds() const { return *column_ids_; }
  /// Whether every column that belongs to the list stands in it; true at the start. Whoever builds the
  /// columns says so, the list itself doesn't use it.
  bool ColumnsWhole() const { return columns_whole_; }
  void SetColumnsWhole(bool whole) { columns_whole_ = whole; }

  /// Appends a row for each record, with all its fields. columnIds are the fields that the columns show,
  /// joined with "; "; they become ColumnIds unless the text is empty.
  void Add(const corvane::List& rows, const std::string& columnIds);
  /// Replaces rows by copies of records: mode 2 the ticked ones, 1 the selected one, 0 all, in list order.
  /// Where the records differ in fields, each row gets what it lacks, empty, since rows of a list have equal
  /// columns.
  void GetDataVector(corvane::List& rows, int mode) const;
  /// Copies the record of a row with all its fields; the column ids choose nothing. False, and an emptied
  /// record, when there is no such row.
  bool Get(corvane::Property& row, const corvane::StringVector& columnIds, int index) const;
  bool Get(corvane::Property& row, const corvane::StringVector& columnIds, const TListItem* item) const;
  /// Replaces the record of a row and repaints it; a null item changes nothing.
  void Modify(const corvane::Property& row, const corvane::StringVector& columnIds, TListItem* item);
  /// The record of a row, null when the item is null or has none; the view owns it. What is changed in it
  /// shows at the next repaint, which follows by itself.
  corvane::Property* PropertyOf(const TListItem* item) const;
  /// Counts anew and repaints a row whose record was changed in place.
  void RefreshItem(const TListItem* item);

  /// Ticks or unticks all rows without running OnItemCheck.
  void CheckAll();
  void UnCheckAll();
  int CheckedCount() const;
  /// Ticked rows whose record is of a kind, 0 to 7, as the last SetKinds has it; 0 before there was one.
  int CheckedCount(unsigned kind) const;
  /// Counts the ticked rows by kinds from here on, so that a tick costs the same however many there are:
  /// kindsOf gives the kinds of a record as the bits of a number. It is asked when a row is first ticked,
  /// and again when its record has changed.
  void SetKinds(std::function<std::uint8_t(const corvane::Property& record)> kindsOf);
  /// Removes a row and its record; std::out_of_range when there is none.
  void DelItem(int index);
  /// Removes the rows at ascending indexes in one pass; an index out of range removes nothing.
  void DelItems(const std::vector<int>& indexes);
  /// Sum of a column, counted from 1, over all rows or the ticked ones, as plain text with two decimals:
  /// exact, decimals behind the second of a cell are left out, and cells that are no number add nothing.
  /// Empty when there is no such column.
  std::string GetTotalMoney(int column, bool checkedOnly) const;
  /// The list view's own sum row, off at the start; on, the sum of each amount column shows below the list.
  bool ShowSumRow() const { return show_sum_row_; }
  void SetShowSumRow(bool show);

 protected:
  explicit TKVXCustomListView(TComponent* owner);
  ~TKVXCustomListView() override;
  void ColumnMoved(int from, int to) override;

 private:
  std::string SumText(int column) const;

  std::unique_ptr<corvane::StringVector> column_ids_;
  bool show_sum_row_ = false;
  bool columns_whole_ = true;
};

class TKVXListView : public TKVXCustomListView {
  Q_OBJECT

 public:
  explicit TKVXListView(TComponent* owner) : TKVXCustomListView(owner) {}
};
