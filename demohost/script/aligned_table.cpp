#include "demohost/script/aligned_table.h"

#include <algorithm>
#include <array>

namespace demohost {
namespace {

struct Range {
  char32_t first, last;
};

// The blocks of the Unicode Standard whose characters are of East Asian full width (UAX #11: W and F).
constexpr std::array<Range, 14> kWide = {{
    {0x1100, 0x115F},
    {0x2E80, 0x303E},
    {0x3041, 0x33FF},
    {0x3400, 0x4DBF},
    {0x4E00, 0x9FFF},
    {0xA000, 0xA4CF},
    {0xA960, 0xA97F},
    {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F},
    {0xFF00, 0xFF60},
    {0xFFE0, 0xFFE6},
    {0x1F300, 0x1FAFF},
    {0x20000, 0x3FFFD},
}};

int Width(char32_t character) {
  switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
      return 0;
    default:
      break;
  }
  const bool wide = std::any_of(kWide.begin(), kWide.end(), [character](const Range& range) {
    return character >= range.first && character <= range.last;
  });
  return wide ? 2 : 1;
}

QString Cell(const QStringList& row, int column) {
  QString text = row.value(column);
  for (QChar& character : text) {
    if (character.category() == QChar::Other_Control) character = QLatin1Char(' ');
  }
  return text;
}

QString Line(const std::vector<TableColumn>& columns, const std::vector<int>& widths,
             const QStringList& row) {
  QString line;
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const QString text = Cell(row, static_cast<int>(column));
    const QString padding(widths[column] - DisplayWidth(text), QLatin1Char(' '));
    if (column > 0) line += QLatin1String("  ");
    line += columns[column].right ? padding + text : text + padding;
  }
  while (line.endsWith(QLatin1Char(' '))) line.chop(1);
  return line + QLatin1Char('\n');
}

}  // namespace

int DisplayWidth(const QString& text) {
  int width = 0;
  for (const char32_t character : text.toStdU32String()) width += Width(character);
  return width;
}

QString AlignedTable(const std::vector<TableColumn>& columns, const std::vector<QStringList>& rows) {
  std::vector<int> widths;
  QStringList captions;
  QStringList dashes;
  for (std::size_t column = 0; column < columns.size(); ++column) {
    captions << columns[column].caption;
    int width = DisplayWidth(Cell(captions, static_cast<int>(column)));
    for (const QStringList& row : rows) {
      width = std::max(width, DisplayWidth(Cell(row, static_cast<int>(column))));
    }
    widths.push_back(width);
    dashes << QString(width, QLatin1Char('-'));
  }
  QString table = Line(columns, widths, captions) + Line(columns, widths, dashes);
  for (const QStringList& row : rows) table += Line(columns, widths, row);
  return table;
}

}  // namespace demohost
