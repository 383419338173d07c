#include "demohost/client_data.h"
#include "demohost/host_words.h"
#include "demohost/libraries/libraries.h"
#include "demohost/output/report.h"
#include "demohost/refusals.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

// The report designs of this host, by template: the key of the title.
constexpr std::pair<std::string_view, std::string_view> kTitles[] = {
    {"TfrmNorvikQry", "UI25826"},
    {"TfrmNorvikELoanQry", "UI25828"},
    {"TfrmNorvikDTLQry", "UI25830"},
};

// The lines above the rows of a report, by the fields of its head.
constexpr std::pair<const char*, HostWord> kHeadLines[] = {
    {"COUNT", HostWord::kReportCount},
    {"MAKEDATE", HostWord::kReportMade},
    {"SELCONDITION", HostWord::kReportCondition},
};

std::string TitleOf(const std::string& name) {
  for (const auto& [report, key] : kTitles) {
    if (report == name) return CurrentText(key);
  }
  return name;
}

// The columns of a report are those of the column table, but for the internal ones.
corvane::List ShownColumns(const std::string& name) {
  corvane::List shown;
  for (corvane::Row row : CurrentServices().store->GetIniplusList("FIELDDEF", name)) {
    if (row.getValue("DISPLAY") == "UI99999" || row.getValue("WIDTH") == "0") continue;
    row["DISPLAY"] = norvik::AnsiFromUtf8(CurrentText(row.getValue("DISPLAY")));
    shown.addRow(row);
  }
  return shown;
}

ExportSheet SheetOf(const std::string& name, const std::string& headText, const std::string& data) {
  ExportSheet sheet = ReadExport(headText, ShownColumns(name).toString(), data);
  sheet.title = TitleOf(name);
  const corvane::Row head(headText);
  const std::string language = CurrentLanguage();
  for (const auto& [field, caption] : kHeadLines) {
    const std::string value = norvik::Utf8FromAnsi(head.getValue(field));
    if (!value.empty()) sheet.head.emplace_back(Word(caption, language), value);
  }
  return sheet;
}

ReportPaper ChosenPaper() {
  const InfoStore& store = *CurrentServices().store;
  return {SettingOf(store, kPortraitSetting) != "1", SettingOf(store, kPaperSetting) == "A3"};
}

// A file name that no earlier report has.
std::filesystem::path FileFor(const std::string& name) {
  const std::filesystem::path& folder = CurrentServices().output->printFolder;
  for (int number = 1;; ++number) {
    std::filesystem::path file = folder / (name + "-" + std::to_string(number) + ".pdf");
    if (!std::filesystem::exists(file)) return file;
  }
}

std::uint8_t Initialize(std::uint32_t, char*) {
  return 1;
}

std::uint8_t PrintList(const char* name, const char* head, const char* data, char* error) {
  return Guarded(error, kLongError, [&] {
    const std::string report = Text(name);
    const std::filesystem::path file = FileFor(report);
    WriteReport(file, SheetOf(report, Text(head), Text(data)), ChosenPaper());
    const Output& output = *CurrentServices().output;
    if (output.made) output.made(file);
  });
}

void PrintSetup(const char* name) {
  const Output& output = *CurrentServices().output;
  if (output.printSettings) output.printSettings(Text(name));
}

}  // namespace

std::vector<norvik_ordinal> PrintTable() {
  std::vector<norvik_ordinal> table = {Entry<&Initialize>(1), Entry<&PrintList>(3), Entry<&PrintSetup>(5)};
  AddIdle(table, 1, 7);
  return table;
}

}  // namespace demohost
