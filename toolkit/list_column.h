// The columns of a list view: width, caption, alignment and display format. Forms build them from the host's
// tables and the column dialog arranges them; the list view draws them and hears of each change here. What
// the cells hold is the rows' matter (list_item.h). Pictures in headers and sorting are not there.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/types.h"

class TListColumns;

/// A column of a list view. MaxWidth 1 hides it from the user; so does width 0. The user can't drag a hidden
/// column open, nor a column out of its bounds.
class TListColumn : public TObject {
  Q_OBJECT

 public:
  /// For TListColumns::Add.
  TListColumn(TListColumns* columns, int id) : columns_(columns), id_(id) {}

  /// Text of the header, empty at the start.
  std::string Caption() const { return caption_; }
  void SetCaption(const std::string& caption);
  /// Width in pixels, brought within MinWidth and MaxWidth where these aren't 0; 50 at the start.
  int Width() const { return width_; }
  void SetWidth(int width);
  /// Minimum width in pixels, 0: none.
  int MinWidth() const { return minWidth_; }
  void SetMinWidth(int width);
  /// Maximum width in pixels, 0: none. With 1 the column reads as 1 or 0 wide.
  int MaxWidth() const { return maxWidth_; }
  void SetMaxWidth(int width);
  /// Where the texts of header and cells are; taLeftJustify at the start.
  TAlignment Alignment() const { return alignment_; }
  void SetAlignment(TAlignment alignment);
  /// Whether the column is hidden.
  bool Hidden() const { return maxWidth_ == 1 || width_ == 0; }
  /// Display format of the cells, a TColumnFormat (decimal_text.h); any other number is cfText. The record
  /// isn't changed by it.
  int Tag() const { return tag_; }
  void SetTag(int tag);
  /// Position among the columns, from 0.
  int Index() const;
  /// Identity in the collection, never given twice while the list view lives.
  int ID() const { return id_; }

  /// Takes the width that the user has dragged the column to, brought within its bounds and at least 1. The
  /// list view calls it, which shows the width itself.
  void TakeDraggedWidth(int width);

 private:
  int Bounded(int width) const;
  void Changed();

  TListColumns* columns_;
  std::string caption_;
  int id_;
  int width_ = 50;
  int minWidth_ = 0;
  int maxWidth_ = 0;
  int tag_ = 0;
  TAlignment alignment_ = taLeftJustify;
};

/// The columns of a list view, in their present order; a column that the user drags to another place changes
/// its place here.
class TListColumns {
 public:
  /// Number of the columns.
  int Count() const { return static_cast<int>(columns_.size()); }
  /// The column at a place, from 0; std::out_of_range when there is none.
  TListColumn* Items(int index) const { return columns_.at(static_cast<std::size_t>(index)).get(); }
  TListColumn* operator[](int index) const { return Items(index); }
  /// Appends a column and returns it; the collection owns it.
  TListColumn* Add();
  /// Deletes all columns.
  void Clear();
  /// The column of an identity, null when it is gone.
  TListColumn* FindItemID(int id) const;
  /// Moves a column to another place, both below Count. The list view calls it, which shows the new order
  /// itself.
  void Move(int from, int to);

  /// Hears of a column at an index that has been added or whose values have changed; set by the list view.
  std::function<void(int index)> OnChange;
  /// Calls `change`, which adds (come) or removes the columns from first to last, between what a view has to
  /// do before and after it; set by the list view.
  std::function<void(int first, int last, bool come, const std::function<void()>& change)> OnCountChange;

 private:
  std::vector<std::unique_ptr<TListColumn>> columns_;
  int nextId_ = 0;
};
