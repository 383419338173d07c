#include "demohost/bank/refuse.h"
#include "demohost/output/export.h"
#include "demohost/refusals.h"
#include "demohost/text_file.h"

namespace demohost {
namespace {

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
