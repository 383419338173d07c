#include "demohost/output/export.h"

#include <cstdlib>

#include "demohost/refusals.h"
#include "demohost/text_file.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

std::string Utf8(const corvane::Row& row, const char* field) {
  return norvik::Utf8FromAnsi(row.getValue(field));
}

CellKind KindOf(const corvane::Row& column) {
  const std::string format = column.getValue("COLFMT");
  if (format == "M") return CellKind::kAmount;
  if (format == "N") return CellKind::kNumber;
  return column.getValue("COLID").find("DAT") == std::string::npos ? CellKind::kText : CellKind::kDate;
}

// The column table's rows, in UTF-8.
std::vector<ExportColumn> ReadColumns(const corvane::List& columns) {
  std::vector<ExportColumn> read;
  for (const corvane::Row& column : columns) {
    read.push_back({column.getValue("COLID"), Utf8(column, "DISPLAY"),
                    std::atoi(column.getValue("WIDTH").c_str()), column.getValue("ALIGN") == "R",
                    KindOf(column)});
  }
  return read;
}

std::string Quoted(const std::string& cell, const std::string& separator) {
  const bool plain = cell.find_first_of("\"\r\n") == std::string::npos &&
                     (separator.empty() || cell.find(separator) == std::string::npos);
  if (plain) return cell;
  std::string quoted = "\"";
  for (const char character : cell) {
    if (character == '"') quoted += '"';
    quoted += character;
  }
  return quoted + "\"";
}

void AddLine(std::string& text, const std::vector<std::string>& cells, const std::string& separator) {
  for (std::size_t at = 0; at < cells.size(); ++at) {
    if (at > 0) text += separator;
    text += Quoted(cells[at], separator);
  }
  text += "\r\n";
}

}  // namespace

ExportSheet ReadExport(const std::string& head, const std::string& columns, const std::string& data) {
  ExportSheet sheet;
  try {
    const corvane::Row row(head);
    sheet.title = Utf8(row, "TITLEVAL");
    for (const auto& [name, value] : {std::pair("TITLENAME", "TITLEVAL"), std::pair("TYPENAME", "TYPEVAL"),
                                      std::pair("QUERYUSER", "USERNAME")}) {
      if (row.hasField(name)) sheet.head.emplace_back(Utf8(row, name), Utf8(row, value));
    }
    if (row.hasField("CONDITION")) sheet.head.emplace_back(Utf8(row, "CONDITION"), std::string());
    sheet.columns = ReadColumns(corvane::List(columns));
    const corvane::List records(data);
    for (const corvane::Row& record : records) {
      std::vector<std::string> cells;
      for (const ExportColumn& column : sheet.columns) cells.push_back(Utf8(record, column.field.c_str()));
      sheet.rows.push_back(std::move(cells));
    }
  } catch (const corvane::TException&) {
    throw Refused(refusal::kUnreadableText);
  }
  return sheet;
}

void WriteDelimited(const std::filesystem::path& path, const ExportSheet& sheet,
                    const std::string& separator) {
  std::string text = "\xEF\xBB\xBF";
  std::vector<std::string> captions;
  for (const ExportColumn& column : sheet.columns) captions.push_back(column.caption);
  AddLine(text, captions, separator);
  for (const std::vector<std::string>& row : sheet.rows) AddLine(text, row, separator);
  try {
    ReplaceFile(path, text);
  } catch (const FileError& error) {
    throw Refused(refusal::kNotExported, error.what());
  }
}

}  // namespace demohost
