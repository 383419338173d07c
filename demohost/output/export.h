#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "data/corvane.h"

namespace demohost {

// How a column's values go into a file.
enum class CellKind { kText, kAmount, kNumber, kDate };

// A column of an export, texts in UTF-8.
struct ExportColumn {
  std::string field;
  std::string caption;
  int width = 0;  // pixels
  bool right = false;
  CellKind kind = CellKind::kText;
};

// A list that leaves the client, texts in UTF-8.
struct ExportSheet {
  std::string title;
  std::vector<std::pair<std::string, std::string>> head;  // what stands above the list: a name and its value
  std::vector<ExportColumn> columns;
  std::vector<std::vector<std::string>> rows;
};

// The sheet of the three texts that a module hands to the spreadsheet library: a row, and two lists. Throws
// Refused for one that can't be read. Dates are what fields of dates hold ("ISSDATE" and all whose name has
// DAT in it), amounts what columns of the format "M" hold.
ExportSheet ReadExport(const std::string& head, const std::string& columns, const std::string& data);

// The column table's rows, as ReadExport takes them, in UTF-8.
std::vector<ExportColumn> ReadColumns(const corvane::List& columns);

// Writes an Office Open XML workbook: title and head, the captions, which stay in sight, and the rows.
// Amounts are numbers with two decimals and dates are dates; whatever isn't one or has more than the 15
// digits of a workbook's numbers, and everything else, is text. Under a name that ends in .xls the file gets
// the ending .xlsx, so that no program asks about an ending that belies the content; since the caller can't
// know of a file of that name, mayReplace is asked where there is one. The file is made beside and put in
// place in one step. Returns where the workbook stands, empty where it was not to be replaced. Throws Refused
// with kNotExported, also for a file in the way and nobody to ask.
std::filesystem::path WriteWorkbook(const std::filesystem::path& path, const ExportSheet& sheet,
                                    const std::function<bool(const std::filesystem::path&)>& mayReplace = {});

// Writes the captions and the rows as lines of text in UTF-8 with a byte order mark, ended by "\r\n", cells
// divided by the separator; a cell that holds the separator, a quote or a line end stands in quotes, its
// quotes doubled. In one step, as above.
void WriteDelimited(const std::filesystem::path& path, const ExportSheet& sheet,
                    const std::string& separator);

}  // namespace demohost
