// A table of texts for a terminal, aligned although Chinese characters are twice as wide. Used by the
// operator's "print" and by the contract check.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace demohost {

/// One column of a table on a terminal.
struct TableColumn {
  QString caption;
  bool right = false;  ///< its texts end at the same place, as numbers do
};

/// The width of a text on a terminal: two for a character of full width (Chinese, full-width signs), none for
/// a combining mark, one for any other.
int DisplayWidth(const QString& text);

/// The rows under their captions, in columns that are as wide as their widest text and two blanks apart, with
/// a line of dashes below the captions. A tab, a line end or another control character in a cell becomes a
/// blank. A row with too few cells ends early; cells beyond the columns are left out.
QString AlignedTable(const std::vector<TableColumn>& columns, const std::vector<QStringList>& rows);

}  // namespace demohost
