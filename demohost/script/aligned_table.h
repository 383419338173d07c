#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace demohost {

// One column of a table on a terminal.
struct TableColumn {
  QString caption;
  bool right = false;  // numbers stand to the right
};

// The places that a text takes on a terminal: two for a character of full width (Chinese, full-width signs),
// none for a combining mark, one for any other.
int DisplayWidth(const QString& text);

// The rows under their captions, in columns wide enough for their longest text and two blanks apart, with a
// line of dashes below the captions. A tab, a line end or another control character in a cell becomes a
// blank. A row that is shorter than the columns ends early; what it has beyond them is left out.
QString AlignedTable(const std::vector<TableColumn>& columns, const std::vector<QStringList>& rows);

}  // namespace demohost
