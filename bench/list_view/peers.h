// The list views that are compared, each behind the same operations.
//
// For bench/list_view/main.cpp, which times them; what a view is made of stands in peers.cpp.
#pragma once

#include <memory>
#include <string>
#include <vector>

class QWidget;

namespace corvane {
class List;
}

namespace list_bench {

/// A column of the list and the field that it shows; hidden ones are made, too.
struct Column {
  /// The field of a record.
  const char* field;
  /// Pixels.
  int width;
  /// TListColumn::Tag.
  int format;
};

/// The columns of a screen of bills.
const std::vector<Column>& Columns();
/// Position of the amount among them.
inline constexpr int kAmountColumn = 2;

/// One list view. Each keeps the record of each row beside what it shows, as the screens need it.
class ListPeer {
 public:
  virtual ~ListPeer() = default;
  /// The widget that is shown.
  virtual QWidget* Widget() = 0;
  /// Replaces all rows.
  virtual void Fill(const corvane::List& rows) = 0;
  /// Ticks every row.
  virtual void TickAll() = 0;
  /// The exact sum of the amounts of the ticked rows.
  virtual std::string SumOfTicked() = 0;
  /// Deletes every second row.
  virtual void DeleteOdd() = 0;
  /// Number of rows.
  virtual int Rows() = 0;
};

/// A list view and how it is made.
struct Peer {
  /// The name in the table.
  std::string name;
  /// Makes an empty view.
  std::unique_ptr<ListPeer> (*make)();
};

/// All, ours first.
const std::vector<Peer>& AllPeers();

}  // namespace list_bench
