// A list that leaves the client: what it is made of, and its form as lines of text. workbook.h and report.h
// write the same list as a workbook and as a PDF.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "data/corvane.h"

namespace demohost {

/// How the values of a column are written to a file.
enum class CellKind { kText, kAmount, kNumber, kDate };

/// A column of an export, texts in UTF-8.
struct ExportColumn {
  std::string field;  ///< the name of its values in a record
  std::string caption;
  int width = 0;       ///< pixels
  bool right = false;  ///< its values are aligned to the right
  CellKind kind = CellKind::kText;
};

/// A list that leaves the client, texts in UTF-8.
struct ExportSheet {
  std::string title;
  std::vector<std::pair<std::string, std::string>> head;  ///< the lines above the list: a name and its value
  std::vector<ExportColumn> columns;
  std::vector<std::vector<std::string>> rows;  ///< a cell for each column
};

/// The sheet of the three texts that a module hands to the spreadsheet library: a row, and two lists. Throws
/// Refused with kUnreadableText for one that can't be read. A field with DAT in its name ("ISSDATE") holds
/// dates, a column of the format "M" amounts, one of the format "N" numbers.
ExportSheet ReadExport(const std::string& head, const std::string& columns, const std::string& data);

/// Writes the captions and the rows as lines of text in UTF-8 with a byte order mark. Lines end with "\r\n",
/// cells are divided by the separator, and a cell that holds the separator, a quote or a line end is put in
/// quotes, its own quotes doubled. The file is made beside its place and put there in one step. Throws
/// Refused with kNotExported.
void WriteDelimited(const std::filesystem::path& path, const ExportSheet& sheet,
                    const std::string& separator);

}  // namespace demohost
