// The list views that are compared.
#pragma once

#include <memory>
#include <string>
#include <vector>

class QWidget;

namespace corvane {
class List;
}

namespace list_bench {

// A column of the list and the field that it shows; hidden ones are made, too.
struct Column {
  const char* field;
  int width;
  int format;  // TListColumn::Tag
};

// The columns of a screen of bills.
const std::vector<Column>& Columns();
// Position of the amount among them.
inline constexpr int kAmountColumn = 2;

// One list view. Each keeps the record of each row beside what it shows, as the screens need it.
class ListPeer {
 public:
  virtual ~ListPeer() = default;
  virtual QWidget* Widget() = 0;
  virtual void Fill(const corvane::List& rows) = 0;
  virtual void TickAll() = 0;
  // The exact sum of the amounts of the ticked rows.
  virtual std::string SumOfTicked() = 0;
  // Deletes every second row.
  virtual void DeleteOdd() = 0;
  virtual int Rows() = 0;
};

struct Peer {
  std::string name;
  std::unique_ptr<ListPeer> (*make)();
};

// All, ours first.
const std::vector<Peer>& AllPeers();

}  // namespace list_bench
