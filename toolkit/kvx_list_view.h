// The list of records that the screens and dialogs show: rows that are records, columns that are fields,
// ticks counted by kinds, sums. What it shares with any list view is in list_view.h; which columns a list has
// and what a tick allows is decided by the forms.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/list_view.h"

namespace corvane {
class List;
class Property;
class StringVector;
}  // namespace corvane

/// Which records GetDataVector gives.
enum TDataVectorMode { dvAll = 0, dvSelected = 1, dvChecked = 2 };

/// A list view that owns a record for each row. Cells are read from the record by the column ids when they
/// are painted; a record whose field Color is a number is drawn in that colour, as TColor counts.
class TKVXCustomListView : public TCustomListView {
  Q_OBJECT

 public:
  /// Name of the record's field that each column shows, in the order of Columns.
  corvane::StringVector& ColumnIds() { return *columnIds_; }
  const corvane::StringVector& ColumnIds() const { return *columnIds_; }
  /// Whether every column that belongs to the list is in it; true at the start. Whoever builds the
  /// columns says so; the list itself doesn't use it.
  bool ColumnsWhole() const { return columnsWhole_; }
  void SetColumnsWhole(bool whole) { columnsWhole_ = whole; }

  /// Appends a row for each record, with all its fields. columnIds are the fields that the columns show,
  /// joined with "; "; they become ColumnIds unless the text is empty.
  void Add(const corvane::List& rows, const std::string& columnIds);
  /// Replaces rows by copies of records, in list order; mode: a TDataVectorMode, any other number is dvAll.
  /// Where the records differ in fields, each row gets what it lacks, empty, since rows of a list have equal
  /// columns.
  void GetDataVector(corvane::List& rows, int mode) const;
  /// Copies the record of a row with all its fields; the column ids choose nothing. False, and an emptied
  /// record, when there is no such row.
  bool Get(corvane::Property& row, const corvane::StringVector& columnIds, int index) const;
  /// The same for a row by its handle, null: no such row.
  bool Get(corvane::Property& row, const corvane::StringVector& columnIds, const TListItem* item) const;
  /// Replaces the record of a row and repaints it; a null item changes nothing.
  void Modify(const corvane::Property& row, const corvane::StringVector& columnIds, TListItem* item);
  /// The record of a row, null when the item is null or has none; the view owns it. What is changed in it
  /// shows at the next repaint, which follows by itself.
  corvane::Property* PropertyOf(const TListItem* item) const;
  /// Counts anew and repaints a row whose record was changed in place.
  void RefreshItem(const TListItem* item);

  /// Ticks all rows without running OnItemCheck.
  void CheckAll();
  /// Unticks all rows without running OnItemCheck.
  void UnCheckAll();
  /// Number of the ticked rows.
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
  /// exact, decimals of a cell after the second are left out, and cells that are no number add nothing.
  /// Empty when there is no such column.
  std::string GetTotalMoney(int column, bool checkedOnly) const;
  /// The list view's own sum row, off at the start; on, the sum of each amount column shows below the list.
  bool ShowSumRow() const { return showSumRow_; }
  void SetShowSumRow(bool show);

 protected:
  explicit TKVXCustomListView(TComponent* owner);
  ~TKVXCustomListView() override;
  void ColumnMoved(int from, int to) override;

 private:
  std::string SumText(int column) const;

  std::unique_ptr<corvane::StringVector> columnIds_;
  bool showSumRow_ = false;
  bool columnsWhole_ = true;
};

/// The list view that a form holds.
class TKVXListView : public TKVXCustomListView {
  Q_OBJECT

 public:
  explicit TKVXListView(TComponent* owner) : TKVXCustomListView(owner) {}
};
