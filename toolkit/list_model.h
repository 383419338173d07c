// Where the rows of a list view are stored: the table that Qt's view reads its cells from. Only the list
// view, its rows' handles and its columns use it; forms go through list_view.h. It draws nothing and reports
// no selection.
#pragma once

#include <QAbstractTableModel>
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "data/row.h"
#include "toolkit/list_item.h"

class TCustomListView;

/// One row: its record, or texts where it has none, and its tick.
struct TListRow {
  explicit TListRow(TListModel* model) : item(model, this) {}

  /// The record; nothing in a row of texts.
  std::optional<corvane::Property> record;
  /// The texts of the columns where the row has no record; those after the last are empty.
  std::vector<std::string> texts;
  /// The row's handle.
  TListItem item;
  /// Where the row was when last asked for; rows that go before it make it too large.
  int index = 0;
  /// Whether the row is ticked.
  bool checked = false;
  /// Kinds of the record, once they have been asked for.
  std::optional<std::uint8_t> kinds;
};

/// The rows of a list view as Qt's views see them. Texts are taken from the rows whenever they are asked for.
class TListModel : public QAbstractTableModel {
 public:
  explicit TListModel(TCustomListView* view) : view_(view) {}

  /// The list view that owns the model.
  TCustomListView* View() const { return view_; }
  /// Number of the rows.
  int Count() const { return static_cast<int>(rows_.size()); }
  /// A row by its place, from 0; std::out_of_range when there is none.
  TListRow& Row(int index) const { return *rows_.at(static_cast<std::size_t>(index)); }
  /// Place of one of the rows.
  int IndexOf(TListRow* row) const;

  /// Text of a cell as it is stored, empty where there is none.
  std::string Text(const TListRow& row, int column) const;
  /// Sets the text of a cell, in the row's record where the column shows a field of it.
  void SetText(TListRow& row, int column, const std::string& text);
  /// Ticks or unticks a row; OnUserCheck doesn't run.
  void SetChecked(TListRow& row, bool checked);
  /// Ticks or unticks all rows with one report to the views.
  void CheckAll(bool checked);
  /// Number of the ticked rows.
  int CheckedCount() const { return checked_; }
  /// Ticked rows whose record is of a kind, a bit from 0 to 7.
  int CheckedCount(unsigned kind) const { return checkedOfKind_[kind]; }
  /// Counts the ticked rows by other kinds from here on.
  void SetKinds(std::function<std::uint8_t(const corvane::Property& record)> kindsOf);

  /// Inserts an empty row before an index, at most Count; std::out_of_range beyond.
  TListRow& Insert(int index);
  /// Appends rows with one report to the views.
  void Append(std::vector<std::unique_ptr<TListRow>> rows);
  /// Removes a row; std::out_of_range when there is none.
  void Delete(int index);
  /// Removes the rows that a test names, in one pass, with one report to the views.
  void DeleteIf(const std::function<bool(int index)>& goes);
  /// Removes all rows.
  void Clear();
  /// Calls a change of the columns between what the views have to hear before and after it.
  void ChangeColumns(int first, int last, bool come, const std::function<void()>& change);
  /// Moves the texts of a column in rows without a record.
  void MoveTexts(int from, int to);
  /// Repaints one row.
  void Touch(int row);
  /// Repaints all rows and the header.
  void TouchAll();
  /// The record of a row has changed: counts the row anew and repaints it.
  void RecordChanged(TListRow& row);

  /// The fields that the columns show, null in a list without records.
  const std::vector<std::string>* columnIds = nullptr;
  /// Runs after the user ticked or unticked a row; set by the list view.
  std::function<void(TListItem* item)> OnUserCheck;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// Whether a column shows the ticks: the first one, and the first that isn't hidden.
  bool ShowsCheck(int column) const;

 private:
  static constexpr unsigned kMaxKinds = 8;

  /// The first column that isn't hidden, the number of the columns when all are.
  int FirstVisibleColumn() const;
  const std::string* FieldOf(const TListRow& row, int column) const;
  /// Adds a ticked row to the counts (by 1), or subtracts it (by -1).
  void CountTick(TListRow& row, int by);

  TCustomListView* view_;
  std::vector<std::unique_ptr<TListRow>> rows_;
  std::function<std::uint8_t(const corvane::Property& record)> kindsOf_;
  int checked_ = 0;
  std::array<int, kMaxKinds> checkedOfKind_{};
};
