// A list in report style: rows in columns, a check box for each, one selected row. The lists of records are
// made on it (kvx_list_view.h). Icons, small icons, editing in place, sorting and rows that are asked for one
// by one are not there. Cells are painted from list_model.h by the Qt view in list_tree.h.
#pragma once

#include <functional>

#include "toolkit/list_column.h"
#include "toolkit/list_item.h"
#include "toolkit/win_control.h"

class QMouseEvent;
class TListModel;
class TListTree;

/// Styles of the original's list views.
enum TViewStyle { vsIcon, vsSmallIcon, vsList, vsReport };

/// A list of rows in columns with a check box for each row, of which one or none is selected. OnItemCheck
/// runs when the user ticks or unticks a row, on its box or with the space key. OnSelectItem runs also when
/// the selection is changed by code, for the row that loses it first, and before a selected row is deleted.
/// Mouse events run when the list has done what the mouse asks for, so OnMouseUp sees the new tick.
class TCustomListView : public TbsSkinControl {
  Q_OBJECT

 public:
  ~TCustomListView() override;

  /// The columns, in their present order.
  TListColumns& Columns() { return columns_; }
  const TListColumns& Columns() const { return columns_; }
  /// The rows.
  TListItems& Items() { return items_; }
  const TListItems& Items() const { return items_; }
  /// The selected row, null: none.
  TListItem* Selected() const;
  void SetSelected(TListItem* item);
  /// Index of the selected row, -1: none.
  int ItemIndex() const;
  /// The same as ItemIndex.
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
  TViewStyle ViewStyle() const { return viewStyle_; }
  void SetViewStyle(TViewStyle style) { viewStyle_ = style; }
  /// Whether each row has a check box; false at the start.
  bool Checkboxes() const { return checkboxes_; }
  void SetCheckboxes(bool on);
  /// Whether lines divide rows and columns; false at the start.
  bool GridLines() const { return gridLines_; }
  void SetGridLines(bool on);
  /// Stored only: a selected row is always marked over its full width.
  bool RowSelect() const { return rowSelect_; }
  void SetRowSelect(bool on) { rowSelect_ = on; }
  /// Stored only: texts are never edited in place.
  bool ReadOnly() const { return readOnly_; }
  void SetReadOnly(bool on) { readOnly_ = on; }
  /// Whether the selection shows only with the focus.
  bool HideSelection() const { return hideSelection_; }
  void SetHideSelection(bool on);
  /// Stored only: the user may always drag a column by its header to another place.
  bool FullDrag() const { return fullDrag_; }
  void SetFullDrag(bool on) { fullDrag_ = on; }
  /// Whether the captions of the columns show; true at the start.
  bool ShowColumnHeaders() const { return showColumnHeaders_; }
  void SetShowColumnHeaders(bool on);

  /// Runs after a row was selected or lost the selection, by the user or by code.
  std::function<void(TObject* sender, TListItem* item, bool selected)> OnSelectItem;
  /// Runs after the user ticked or unticked a row.
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
  void ConnectHeader();
  void ShowColumn(int index);
  /// Puts width and visibility of a column on the header.
  void PlaceColumn(int index);
  void SectionResized(int index, int width);
  void SectionMoved(int from, int to);
  void TreeMouse(QMouseEvent* event);
  void ReportSelection(int row, bool selected);

  TListModel* model_;
  TListColumns columns_;
  TListItems items_;
  TViewStyle viewStyle_ = vsReport;
  bool checkboxes_ = false;
  bool gridLines_ = false;
  bool rowSelect_ = false;
  bool readOnly_ = false;
  bool hideSelection_ = true;
  bool fullDrag_ = false;
  bool showColumnHeaders_ = true;
  bool arranging_ = false;
};

/// A list view without records.
class TListView : public TCustomListView {
  Q_OBJECT

 public:
  explicit TListView(TComponent* owner) : TCustomListView(owner) {}
};
