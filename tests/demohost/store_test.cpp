#include <gtest/gtest.h>

#include "demohost/client_data.h"
#include "demohost/info_store.h"
#include "demohost/refusals.h"
#include "demohost/text_file.h"
#include "platform/code_page.h"
#include "tests/demohost/folder.h"

namespace demohost {
namespace {

corvane::Iniplus Layout(const std::string& section, const std::string& caption) {
  corvane::List list;
  corvane::Row row;
  row["ColumnID"] = "BILLNUM";
  row["ColumnCaption"] = norvik::AnsiFromUtf8(caption);
  list.addRow(row);
  corvane::Iniplus layout;
  layout.addSection(section, list);
  return layout;
}

std::string RefusalOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Refused& refused) {
    return refused.Lines();
  }
  return "done";
}

TEST(InfoStore, RefusesWhatItDoesNotHold) {
  const Folder folder;
  InfoStore store(folder.Path());
  store.SetField("ENVIRONMENT", corvane::Field("A", "1"));
  store.SetIniplus("FIELDDEF", Layout("TfrmX", "x"));
  corvane::Ini ini;
  corvane::Row row;
  row["Item"] = "v";
  ini.addSection("S", row);
  store.SetIni("I", ini);
  const struct {
    const char* name;
    std::function<void()> read;
    const char* result;
  } cases[] = {
      {"unknown block", [&] { store.GetField("NONE", "A"); }, "NONE\r\nHS40001"},
      {"unknown field", [&] { store.GetField("ENVIRONMENT", "B"); }, "B\r\nHS40001"},
      {"a field", [&] { store.GetField("ENVIRONMENT", "A"); }, "done"},
      {"unknown list", [&] { store.GetList("NONE"); }, "NONE\r\nHS40001"},
      {"unknown ini", [&] { store.GetIni("NONE"); }, "NONE\r\nHS40001"},
      {"unknown section", [&] { store.GetIniValue("I", "NONE", "Item"); }, "I NONE\r\nHS40001"},
      {"unknown item", [&] { store.GetIniValue("I", "S", "Other"); }, "done"},
      {"unknown iniplus", [&] { store.GetIniplus("NONE"); }, "NONE\r\nHS40001"},
      {"section without rows", [&] { store.GetIniplusList("FIELDDEF", "TfrmOther"); }, "done"},
      {"a row", [&] { store.GetIniplusRow("FIELDDEF", "TfrmX", 0); }, "done"},
      {"row past the last", [&] { store.GetIniplusRow("FIELDDEF", "TfrmX", 1); },
       "FIELDDEF TfrmX 1\r\nHS40001"},
      {"row before the first", [&] { store.GetIniplusRow("FIELDDEF", "TfrmX", -1); },
       "FIELDDEF TfrmX -1\r\nHS40001"},
  };
  for (const auto& [name, read, result] : cases) EXPECT_EQ(RefusalOf(read), result) << name;
  EXPECT_EQ(store.GetIniValue("I", "S", "Item"), "v");
  EXPECT_EQ(store.Handle("NONE"), 0u);
}

TEST(InfoStore, KeepsLayoutsFromRunToRun) {
  const Folder folder;
  {
    InfoStore store(folder / "config");
    EXPECT_FALSE(store.KeepIniplus("COLUMN_INFO"));
    EXPECT_EQ(store.GetIniplusList("COLUMN_INFO", "TfrmX").size(), 0u);
    store.RemoveIniplus("COLUMN_INFO");
    store.SetIniplus("COLUMN_INFO", Layout("TfrmX", "票号"));
    // The first step of a replacement whose second one never comes.
    store.RemoveIniplus("COLUMN_INFO");
  }
  InfoStore store(folder / "config");
  EXPECT_TRUE(store.KeepIniplus("COLUMN_INFO"));
  ASSERT_EQ(store.GetIniplusList("COLUMN_INFO", "TfrmX").size(), 1u);
  EXPECT_EQ(norvik::Utf8FromAnsi(store.GetIniplusList("COLUMN_INFO", "TfrmX")[0].getValue("ColumnCaption")),
            "票号");
  EXPECT_NE(ReadFile(folder / "config/column_info.xml").find("票号"), std::string::npos);
}

TEST(InfoStore, PutsADamagedFileAside) {
  const Folder folder;
  folder.Write("column_info.xml", "<iniplus><section");
  InfoStore store(folder.Path());
  EXPECT_FALSE(store.KeepIniplus("COLUMN_INFO"));
  EXPECT_EQ(store.GetIniplusList("COLUMN_INFO", "TfrmX").size(), 0u);
  EXPECT_EQ(ReadFile(folder / "column_info.xml.damaged"), "<iniplus><section");
  store.SetIniplus("COLUMN_INFO", Layout("TfrmX", "x"));
  EXPECT_TRUE(std::filesystem::exists(folder / "column_info.xml"));
}

TEST(InfoStore, ReportsAFileThatCannotBeWritten) {
  const Folder folder;
  folder.Write("file", "");
  InfoStore store(folder / "file/below");
  store.KeepIniplus("COLUMN_INFO");
  const std::string lines = RefusalOf([&] { store.SetIniplus("COLUMN_INFO", Layout("TfrmX", "x")); });
  EXPECT_TRUE(lines.ends_with(refusal::kNotSaved)) << lines;
  EXPECT_EQ(store.GetIniplusList("COLUMN_INFO", "TfrmX").size(), 1u);
}

TEST(ClientData, FillsTheStoreFromTheTables) {
  const Folder folder;
  folder.Write("share/tables/fielddef.txt", "[TfrmX]\nBILLNUM UI44008 140 L C\nPAYAMT UI44344 120 R M\n");
  folder.Write("share/tables/businessdict.txt", "[YESORNO]\n0 UI12017\n1 UI12016\n");
  const Tables tables = ReadTables(folder / "share");
  EXPECT_EQ(CodesOf(tables), (CodeTables{{"YESORNO", {"0", "1"}}}));
  folder.Write("config/sysconfig_data.xml",
               "<ini><section name=\"APPLICATION.LANG\"><Language>English</Language></section></ini>");
  InfoStore store(folder / "config");
  FillStore(store, tables, {{"1001", "甲公司"}, {"1002", "乙公司"}}, {folder / "images", folder / "skins"});
  // What was chosen before stays, what is new comes in.
  EXPECT_EQ(store.GetIniValue("SYSCONFIG_DATA", "APPLICATION.LANG", "Language"), "English");
  EXPECT_EQ(store.GetIniValue("SYSCONFIG_DATA", "APPLICATION.OPERATOR", "SimulateTab"), "1");
  EXPECT_EQ(store.GetIniValue("SYSCONFIG_DATA", "CONTROL.UPDOWN", "TKVXEdit"), "");
  EXPECT_EQ(store.GetIniplusRow("FIELDDEF", "TfrmX", 1).getValue("COLFMT"), "M");
  EXPECT_EQ(store.GetIniplusList("BUSINESSDICT", "YESORNO")[1].getValue("TYPE"), "UI12016");
  EXPECT_EQ(store.FieldValue("ENVIRONMENT", "ENV.SKIN"), (folder / "skins").string() + "/");
  const std::string style = store.GetIniValue("SYSCONFIG_DATA", "APPLICATION.STYLE", "Style");
  EXPECT_EQ(store.GetIniValue("PATTERN_DATA", "PATTERN.STYLES", style + "_FileName"), "light.skin");
  corvane::List accounts = store.GetList("CMLGBSNACC");
  EXPECT_EQ(accounts.select("FLOWID", corvane::StringVector("F31001", "|", false)).size(), 2u);
  EXPECT_FALSE(store.GetList("CMLGUSERINFO")[0].getValue("OPRNO").empty());
}

}  // namespace
}  // namespace demohost
