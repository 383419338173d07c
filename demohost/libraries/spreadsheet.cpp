#include "demohost/libraries/libraries.h"
#include "demohost/output/export.h"
#include "demohost/output/workbook.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

// A path of the caller, which is narrow text, as the file system has it.
std::filesystem::path PathOf(const char* path) {
  return norvik::Utf8FromAnsi(Text(path));
}

void Tell(const std::filesystem::path& file) {
  const Output& output = *CurrentServices().output;
  if (output.made) output.made(file);
}

std::uint8_t ExportWorkbook(const char* path, const char* head, const char* columns, const char* data,
                            char* error) {
  return Guarded(error, kLongError, [&] {
    const std::filesystem::path file =
        WriteWorkbook(PathOf(path), ReadExport(Text(head), Text(columns), Text(data)),
                      CurrentServices().output->mayReplace);
    if (!file.empty()) Tell(file);
  });
}

std::uint8_t ExportText(const char* path, const char* head, const char* columns, const char* data,
                        const char* separator, char* error, std::int32_t) {
  return Guarded(error, kLongError, [&] {
    WriteDelimited(PathOf(path), ReadExport(Text(head), Text(columns), Text(data)), Text(separator));
    Tell(PathOf(path));
  });
}

}  // namespace

std::vector<norvik_ordinal> SpreadsheetTable() {
  std::vector<norvik_ordinal> table = {Entry<&ExportWorkbook>(2), Entry<&ExportText>(5)};
  AddIdle(table, 1, 10);
  return table;
}

}  // namespace demohost
