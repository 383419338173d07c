#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <regex>

#include "demohost/output/export.h"
#include "demohost/output/report.h"
#include "demohost/output/workbook.h"
#include "demohost/refusals.h"
#include "demohost/shortcut.h"
#include "demohost/text_file.h"
#include "platform/code_page.h"
#include "tests/demohost/folder.h"

namespace demohost {
namespace {

// What a command writes.
std::string OutputOf(const std::string& command) {
  std::string output;
  FILE* pipe = ::popen(command.c_str(), "r");
  char buffer[4096];
  while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, pipe)) output.append(buffer, count);
  ::pclose(pipe);
  return output;
}

corvane::Row RowOf(std::initializer_list<std::pair<const char*, const char*>> fields) {
  corvane::Row row;
  for (const auto& [name, value] : fields) row[name] = norvik::AnsiFromUtf8(value);
  return row;
}

ExportSheet Sheet() {
  corvane::List columns;
  const auto add = [&columns](const char* field, const char* caption, const char* align, const char* format) {
    columns.addRow(RowOf(
        {{"COLID", field}, {"DISPLAY", caption}, {"WIDTH", "140"}, {"ALIGN", align}, {"COLFMT", format}}));
  };
  add("BILLNUM", "票号", "L", "C");
  add("PAYAMT", "票面金额", "R", "M");
  add("DUEDATE", "到期日", "C", "C");
  add("BILLSID", "票据ID", "R", "R");
  add("ENDRMNT", "手数", "R", "N");
  add("APLYRMK", "备注", "L", "C");
  corvane::List data;
  data.addRow(RowOf({{"BILLNUM", "0031310012000001"},
                     {"PAYAMT", "1250411.89"},
                     {"DUEDATE", "20260229"},
                     {"BILLSID", "20260115"},
                     {"ENDRMNT", "n/a"},
                     {"APLYRMK", "背书\\转让|\"待定\""}}));
  data.addRow(RowOf({{"BILLNUM", "2"},
                     {"PAYAMT", "100000000000000.01"},
                     {"DUEDATE", "20260615"},
                     {"BILLSID", ""},
                     {"ENDRMNT", "3"},
                     {"APLYRMK", "=1+1\n€"}}));
  const corvane::Row head = RowOf({{"TITLENAME", "标题"},
                                   {"TITLEVAL", "代保管票据查询"},
                                   {"TYPENAME", "类型"},
                                   {"TYPEVAL", "BillQry"},
                                   {"QUERYUSER", "操作员"},
                                   {"USERNAME", "王芳"},
                                   {"CONDITION", "条件"},
                                   {"FONTNAME", "x"},
                                   {"FONTSIZE", "9"}});
  return ReadExport(head.toString(), columns.toString(), data.toString());
}

TEST(Export, WritesLinesThatOtherProgramsTakeApart) {
  const Folder folder;
  WriteDelimited(folder / "a.txt", Sheet(), "|");
  EXPECT_EQ(ReadFile(folder / "a.txt"),
            "\xEF\xBB\xBF票号|票面金额|到期日|票据ID|手数|备注\r\n"
            "0031310012000001|1250411.89|20260229|20260115|n/a|\"背书\\转让|\"\"待定\"\"\"\r\n"
            "2|100000000000000.01|20260615||3|\"=1+1\n€\"\r\n");
}

TEST(Export, WritesAWorkbookThatAnotherReaderReads) {
  const Folder folder;
  const auto file = WriteWorkbook(folder / "a.xls", Sheet());
  EXPECT_EQ(file, folder / "a.xlsx");
  folder.Write(
      "read.py",
      "import openpyxl, sys\n"
      "sheet = openpyxl.load_workbook(sys.argv[1]).active\n"
      "print(sheet.freeze_panes, sheet.column_dimensions['A'].width)\n"
      "for row in sheet.iter_rows():\n"
      "    cells = [(c.value, c.number_format) for c in row]\n"
      "    print('|'.join('' if v is None else type(v).__name__ + ':' + repr(v) + ':' + f for v, f in cells))\n");
  const std::string output =
      OutputOf("/usr/bin/python3 " + (folder / "read.py").string() + " " + file.string() + " 2>&1");
  const char* lines[] = {
      "A8 20.",
      "str:'代保管票据查询':General",
      "str:'操作员':General|str:'王芳':General",
      "str:'票号':General|str:'票面金额':General|str:'到期日':General",
      "str:'0031310012000001':@|float:1250411.89:#,##0.00|str:'20260229':@|str:'20260115':@|str:'n/a':@|"
      "str:'背书\\\\转让|\"待定\"':@",
      "str:'2':@|str:'100000000000000.01':@|datetime:datetime.datetime(2026, 6, 15, 0, 0):yyyy-mm-dd||"
      "int:3:0|str:'=1+1\\n€':@",
  };
  for (const char* line : lines)
    EXPECT_NE(output.find(line), std::string::npos) << line << "\nin\n" << output;
}

TEST(Export, LeavesTheOldFileWholeWhereItFails) {
  const Folder folder;
  EXPECT_THROW(ReadExport("<row/>", "<list>", "<list/>"), Refused);
  folder.Write("a.xlsx", "old");
  EXPECT_THROW(WriteWorkbook(folder / "a.xls", Sheet()), Refused);
  EXPECT_EQ(WriteWorkbook(folder / "a.xls", Sheet(), [](const auto&) { return false; }), "");
  EXPECT_EQ(ReadFile(folder / "a.xlsx"), "old");
  WriteWorkbook(folder / "a.xls", Sheet(), [&](const auto& file) { return file == folder / "a.xlsx"; });
  EXPECT_NE(ReadFile(folder / "a.xlsx"), "old");
  EXPECT_THROW(WriteWorkbook(folder / "none/a.xlsx", Sheet()), Refused);
  folder.Write("file", "");
  EXPECT_THROW(WriteDelimited(folder / "file/a.txt", Sheet(), "|"), Refused);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 2);
}

TEST(Report, RepeatsItsHeadOnEachPage) {
  const Folder folder;
  ExportSheet sheet = Sheet();
  while (sheet.rows.size() < 100) sheet.rows.push_back(sheet.rows[0]);
  sheet.rows.back()[0] = "LASTROW";
  WriteReport(folder / "prints/a.pdf", sheet, {});
  const std::string pages = OutputOf("pdftotext -layout " + (folder / "prints/a.pdf").string() + " - 2>&1");
  const auto count = [&pages](const std::string& text) {
    int found = 0;
    for (auto at = pages.find(text); at != std::string::npos; at = pages.find(text, at + 1)) ++found;
    return found;
  };
  const int titles = count("代保管票据查询");
  EXPECT_GE(titles, 3);
  EXPECT_EQ(count("备注"), titles / 2) << "the title is on a page twice, as title and in the head";
  EXPECT_EQ(count("LASTROW"), 1);
  EXPECT_TRUE(std::regex_search(pages, std::regex("1 ?/ ?" + std::to_string(titles / 2))))
      << pages.substr(0, 4000);
  const std::string info = OutputOf("pdfinfo " + (folder / "prints/a.pdf").string());
  EXPECT_NE(info.find("842 x 595 pts (A4)"), std::string::npos) << info;
}

TEST(Report, BringsColumnsThatDoNotFitOnPagesOfTheirOwn) {
  const Folder folder;
  ExportSheet sheet;
  sheet.title = "wide";
  for (int column = 0; column < 20; ++column)
    sheet.columns.push_back({"F", "C" + std::to_string(column) + "X", 150});
  sheet.rows.push_back(std::vector<std::string>(20, "cell"));
  WriteReport(folder / "a.pdf", sheet, {});
  const std::string text = OutputOf("pdftotext -layout " + (folder / "a.pdf").string() + " -");
  for (int column = 0; column < 20; ++column)
    EXPECT_NE(text.find("C" + std::to_string(column) + "X"), std::string::npos) << column;
  EXPECT_GT(std::count(text.begin(), text.end(), '\f'), 1);
}

TEST(Shortcut, IsADesktopEntryThatOpensTheItem) {
  const Folder folder;
  const auto file =
      WriteShortcut(folder / "Desktop", "/opt/a b/demo$host", {"ITEM6066", "票据\n查询", "/p/i.ico"});
  EXPECT_EQ(file.filename(), "norvik-ITEM6066.desktop");
  EXPECT_EQ(
      ReadFile(file),
      "[Desktop Entry]\nType=Application\nName=票据\\n查询\nExec=\"/opt/a b/demo\\\\$host\" --open ITEM6066\n"
      "Terminal=false\nIcon=/p/i.ico\n");
  EXPECT_NE(std::filesystem::status(file).permissions() & std::filesystem::perms::owner_exec,
            std::filesystem::perms::none);
  EXPECT_THROW(WriteShortcut(folder.Path(), "/x", {"../evil", "c", ""}), FileError);
}

}  // namespace
}  // namespace demohost
