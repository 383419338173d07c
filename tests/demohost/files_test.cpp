#include <gtest/gtest.h>

#include <functional>

#include "demohost/calendar.h"
#include "demohost/text_file.h"
#include "demohost/texts.h"
#include "demohost/words.h"
#include "tests/demohost/folder.h"

namespace demohost {
namespace {

std::string FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const FileError& failure) {
    return failure.what();
  }
  return "no failure";
}

TEST(SectionsFile, ReadsSectionsAndSkipsComments) {
  const Folder folder;
  const auto file = folder.Write("t.txt", "# first\n[ONE]\nA 1\r\n\n  B\t2\n[EMPTY]\n[TWO]\nC 3\n");
  const Sections sections = ReadSections(file, 2);
  ASSERT_EQ(sections.size(), 3u);
  EXPECT_EQ(sections.at("ONE"), (std::vector<std::vector<std::string>>{{"A", "1"}, {"B", "2"}}));
  EXPECT_TRUE(sections.at("EMPTY").empty());
}

TEST(SectionsFile, NamesTheLineOfAFault) {
  const struct {
    const char* content;
    const char* reason;
  } cases[] = {
      {"A 1\n", ":1: a line before the first section"},
      {"[ONE]\nA\n", ":2: expected 2 words"},
      {"[ONE]\nA 1 2\n", ":2: expected 2 words"},
      {"[ONE]\n[TWO]\n[ONE]\n", ":3: the section ONE stands twice"},
      {"[ONE\n", ":1: a section is [NAME]"},
  };
  const Folder folder;
  for (const auto& [content, reason] : cases) {
    const auto file = folder.Write("t.txt", content);
    EXPECT_EQ(FailureOf([&] { ReadSections(file, 2); }), file.string() + reason) << content;
  }
  EXPECT_NE(FailureOf([&] { ReadSections(folder / "none.txt", 2); }), "no failure");
}

TEST(TextsFile, ReadsEscapesAndLanguages) {
  const Folder folder;
  folder.Write("zh_CN.txt", "# c\nUI1=票号\nUI2=a\\nb\\tc\\\\d\nUI3=x=y\n");
  folder.Write("zh_TW.txt", "UI1=票號\n");
  folder.Write("en.txt", "UI1=Bill number\r\n");
  const Texts texts(folder.Path());
  EXPECT_EQ(texts.Find("Simplified Chinese", "UI1"), "票号");
  EXPECT_EQ(texts.Find("Traditional Chinese", "UI1"), "票號");
  EXPECT_EQ(texts.Find("English", "UI1"), "Bill number");
  EXPECT_EQ(texts.Find("Simplified Chinese", "UI2"), "a\nb\tc\\d");
  EXPECT_EQ(texts.Find("Simplified Chinese", "UI3"), "x=y");
  EXPECT_EQ(texts.Find("English", "UI2"), "");
  EXPECT_EQ(texts.Find("Klingon", "UI1"), "");
}

TEST(TextsFile, RefusesWhatIsNoText) {
  for (const char* content : {"UI1\n", "=x\n", "UI1=a\nUI1=b\n", "UI1=a\\x\n", "UI1=a\\"}) {
    const Folder folder;
    folder.Write("zh_CN.txt", content);
    EXPECT_THROW(Texts{folder.Path()}, FileError) << content;
  }
}

TEST(ReplaceFile, PutsTheWholeFileInPlaceOrLeavesTheOldOne) {
  const Folder folder;
  const auto file = folder / "deep/er/file.xml";
  ReplaceFile(file, "one");
  ReplaceFile(file, "two");
  EXPECT_EQ(ReadFile(file), "two");
  EXPECT_FALSE(std::filesystem::exists(folder / "deep/er/file.xml.new"));
  // A folder in the place of the new file makes the writing fail.
  std::filesystem::create_directories(folder / "deep/er/file.xml.new/x");
  EXPECT_NE(FailureOf([&] { ReplaceFile(file, "three"); }), "no failure");
  EXPECT_EQ(ReadFile(file), "two");
}

TEST(Calendar, KnowsTheDaysThatThereAre) {
  for (const char* good : {"20160229", "20151231", "00010101", "20260615"}) {
    ASSERT_TRUE(DayOf(good)) << good;
    EXPECT_EQ(DayText(*DayOf(good)), good);
  }
  for (const char* bad :
       {"", "2016022", "20150229", "20151301", "20150431", "2015+101", "201501010", "２０15"}) {
    EXPECT_FALSE(DayOf(bad)) << bad;
  }
}

TEST(Words, SplitsAtEverySeparator) {
  EXPECT_EQ(Split("a|b||", '|'), (std::vector<std::string>{"a", "b", "", ""}));
  EXPECT_EQ(Split("", '|'), std::vector<std::string>{""});
  EXPECT_EQ(Split("a\r\nb\nc", "\r\n"), (std::vector<std::string>{"a", "b\nc"}));
}

}  // namespace
}  // namespace demohost
