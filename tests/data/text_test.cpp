// Strings, lists of strings, exceptions, wide text and the clock.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

#include "data/corvane.h"
#include "platform/code_page.h"
#include "tests/data/keys.h"

namespace {

using namespace corvane;

// Characters of code page 936 that end in a backslash, a bar and "A".
const std::string kBackslash = "\x81\x5C";
const std::string kBar = "\x81\x7C";
const std::string kLetter = "\x81\x41";

struct Split {
  std::string text;
  std::string separator;
  bool unescape;
  StringVector entries;
};

TEST(StringVector, Splits) {
  const std::vector<Split> cases = {
      {"a\r\nb\r\n", "\r\n", true, {"a", "b"}},
      {"a\r\n\r\nb", "\r\n", true, {"a", "", "b"}},
      {",a", ",", true, {"", "a"}},
      {"\\,a", ",", true, {",a"}},
      {"\\,a", ",", false, {"\\,a"}},
      {"a\\\\,b", ",", true, {"a\\", "b"}},
      {"a\\\\,b", ",", false, {"a\\\\", "b"}},
      {"a\\\\\\,b", ",", true, {"a\\\\", "b"}},
      {"a", "||", true, {"a"}},
      {"\\\\", "|||", true, {"\\\\"}},
      {"||", "||", true, {""}},
      {"|||", "||", true, {"", "|"}},
      {",,", ",", true, {"", ""}},
      {"x\\,\\,y,z", ",", true, {"x,,y", "z"}},
      {kBackslash + ",b", ",", true, {kBackslash, "b"}},
      {"a" + kBar + "b|c", "|", true, {"a" + kBar + "b", "c"}},
      {kBar + kBar + "|", "|", true, {kBar + kBar}},
      {"\xA1|\xAA\xA1||b", "|", true, {"\xA1|\xAA\xA1", "", "b"}},
      {kBackslash + "\\," + kBackslash, ",", true, {kBackslash + "," + kBackslash}},
      {"1" + kLetter + "A2", "A", true, {"1" + kLetter, "2"}},
      {"a\\\\b", "\\", false, {"a", "\\b"}},
      {"ax\\x\\b", "x\\", false, {"a", "x\\b"}},
      {"ax\\\\x\\b", "x\\", false, {"a", "\\", "b"}},
  };
  for (const Split& one : cases)
    EXPECT_EQ(StringVector(one.text, one.separator, one.unescape), one.entries) << one.text;
}

TEST(StringVector, LeavesTheListAloneWhereThereIsNothingToSplit) {
  StringVector list{"a"};
  list.fromString("", ",", true);
  list.fromString("b", "", true);
  EXPECT_EQ(list, StringVector{"a"});
  list.fromString(list[0], ",", true);
  EXPECT_EQ(list, StringVector{"a"});
  StringVector own{"a separator of many bytes", "b"};
  own.fromString("1a separator of many bytes2", own[0], true);
  EXPECT_EQ(own, (StringVector{"1", "2"}));
}

TEST(StringVector, JoinsAndComesBack) {
  struct Case {
    StringVector entries;
    std::string separator;
    std::string text;
  };
  const std::vector<Case> cases = {
      {{"a\\b", "c"}, ",", "a\\\\b,c"},
      {{"x,y"}, ",", "x\\,y"},
      {{"a", "", "b"}, "|", "a||b"},
      {{kBackslash, kBar}, "|", kBackslash + "|" + kBar},
      {{kBackslash + "\\", "1"}, "|", kBackslash + "\\\\|1"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(one.entries.toString(one.separator, false), one.text);
    EXPECT_EQ(StringVector(one.text, one.separator, true), one.entries) << one.text;
  }
  EXPECT_EQ(StringVector().toString(",", false), "");
  EXPECT_EQ(StringVector().toString(",", true), ",");
  EXPECT_EQ((StringVector{"a", "b"}).toString(",", true), "a,b,");
  EXPECT_EQ((StringVector{"a", "b", "b"}).indexOf("b"), 1);
  EXPECT_EQ((StringVector{"a"}).indexOf("A"), -1);
}

TEST(Text, StepsByCharacter) {
  EXPECT_EQ(findText(kBar + "|", "|"), 2U);
  EXPECT_EQ(findText("\x81|", "|"), std::string::npos);
  EXPECT_EQ(findText("\xFF|", "|"), 1U);
  EXPECT_EQ(findText(kLetter + "\x81\x81", "\x81"), std::string::npos);
  EXPECT_EQ(findText(kLetter + "\x81", "\x81"), 2U);
  norvik::SetAnsiCodePage(949);
  EXPECT_EQ(findText("\xC9||", "|"), 2U);  // no character, and yet one pair
  EXPECT_EQ(cutText("a\xC9|", 2), "a");
  norvik::SetAnsiCodePage(65001);
  EXPECT_EQ(findText("你\xBD", "\xBD"), 3U);
  EXPECT_EQ(findText("a你", "\xE4"), std::string::npos);
  norvik::SetAnsiCodePage(936);
  EXPECT_EQ(findText("aa", "", 0), std::string::npos);
  EXPECT_EQ(findText("a", "a", 2), std::string::npos);
  struct Case {
    std::string text;
    std::size_t bytes;
    std::string cut;
  };
  const std::vector<Case> cases = {
      {"abc", 2, "ab"}, {"abc", 3, "abc"}, {"abc", 0, ""}, {kBar + kBar, 3, kBar}, {kBar + kBar, 1, ""},
  };
  for (const Case& one : cases) EXPECT_EQ(cutText(one.text, one.bytes), one.cut) << one.text << one.bytes;
}

TEST(Text, Trims) {
  EXPECT_EQ(trim("  a b \t "), "a b \t");
  EXPECT_EQ(trimLeft(" a "), "a ");
  EXPECT_EQ(trimRight(" a\r\n "), " a\r\n");
  EXPECT_EQ(trim("   "), "");
  EXPECT_EQ(trim(""), "");
}

TEST(Text, ReplacesAll) {
  EXPECT_EQ(replaceAll("aXbXX", "X", "XY"), "aXYbXYXY");
  EXPECT_EQ(replaceAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
  EXPECT_EQ(replaceAll("", "a", "b"), "");
  EXPECT_EQ(replaceAll(kBar + "|", "|", ""), kBar);
  EXPECT_EQ(replaceAll(std::string(30000, 'a'), "a", "bb"), std::string(60000, 'b'));
}

TEST(Text, WritesNumbers) {
  struct Case {
    double value;
    int decimals;
    std::string text;
  };
  const std::vector<Case> cases = {
      {1234.5, 2, "1234.50"},
      {-0.05, 2, "-0.05"},
      {0.5, 2, "0.50"},
      {0, 2, "0.00"},
      {0.004, 2, "0.00"},
      {0.005001, 2, "0.01"},
      {-1234.567, 2, "-1234.57"},
      {999.999, 2, "1000.00"},
      {0.999, 2, "1.00"},
      {-0.004, 2, "-0.00"},
      {1e20, 2, "100000000000000000000.00"},
      {0.0005, 3, "0.001"},
      {0.0001, 6, "0.000100"},
      {0.1, 20, "0.10000000000000000555"},
      {-7.5, 0, "-8."},
      {7, -1, "7."},
  };
  for (const Case& one : cases) EXPECT_EQ(doubleToString(one.value, one.decimals), one.text) << one.value;
}

TEST(Text, BuffersInChunks) {
  for (const unsigned size : {1U, 3U, 10U, 100U}) {
    StringBuffer buffer(size, 4);
    EXPECT_EQ(buffer.toString(), "");
    buffer.append("");
    buffer.append("hello ");
    buffer.append('w');
    buffer.append(std::string("orld\0!", 6));
    EXPECT_EQ(buffer.toString(), std::string("hello world\0!", 13)) << size;
  }
}

TEST(Text, GoesWideAndBack) {
  EXPECT_EQ(WideString("\xC4\xE3"
                       "a",
                       3, 0),
            u"你a");
  EXPECT_EQ(WideString("ab", -1, 0), u"ab");
  EXPECT_EQ(WideString(u"你x", 1).toString(936), "\xC4\xE3");
  EXPECT_EQ(WideString(std::string("你"), 65001).toString(0), "\xC4\xE3");
  EXPECT_EQ(WideString().toString(0), "");
  EXPECT_EQ(WideString(u"ab", -1), u"");
}

TEST(Exceptions, CarryTheirTexts) {
  TException failure("ET10016");
  failure.addErrors(StringVector{"a", "b"});
  failure.addErrors(failure.getErrors());
  EXPECT_EQ(failure.getMessage("\r\n"), "ET10016\r\na\r\nb\r\nET10016\r\na\r\nb");
  EXPECT_EQ(TException(StringVector{"x", "y"}).getMessage(",", true), "x,y,");
  EXPECT_EQ(TException({"x", "y"}).getMessage(","), "x,y");
  try {
    throw TIOException("CF00001", "the host's words");
  } catch (const TException& caught) {
    EXPECT_EQ(caught.getMessage(","), "CF00001");
    EXPECT_EQ(dynamic_cast<const TIOException&>(caught).getDetail(), "the host's words");
  }
}

TEST(Exceptions, SayWhatWasRefusedAndWhy) {
  struct Case {
    std::string name;
    std::function<void()> call;
    std::string keys;
    std::string what;
  };
  const std::vector<Case> cases = {
      {"malformed", [] { CorvaneStream("<s>\n<row></s>"); }, "ET10016",
       "ET10016: line 2, column 8: mismatched tag"},
      {"too deep", [] { Row("<r><A><B/></A></r>"); }, "ET10057",
       "ET10057: line 1, column 7: element not expected here"},
      {"other columns", [] { List("<list><row><A/></row><row><B/></row></list>"); }, "ET10052",
       "ET10052: line 1, column 31: the document refuses what was read (ET10101)"},
      {"another root", [] { List("<rows/>"); }, "ET10100", "ET10100: the root element is no \"list\""},
      {"empty", [] { Field(""); }, "ET10044", "ET10044: the text is empty"},
      {"no text", [] { throw TIOException("CF30004", "a\\b"); }, "CF30004", "CF30004"},
      {"several",
       [] {
         throw TException({"a;", "b"});
       },
       "a;|b", "a;; b"},
      {"grown copy",
       [] {
         TException failure("ET10016", "line 1");
         failure.addErrors({"x"});
         throw TException(failure);
       },
       "ET10016|x", "ET10016; x: line 1"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(KeyOf(one.call), one.keys) << one.name;
    try {
      one.call();
    } catch (const std::exception& failure) {
      EXPECT_EQ(failure.what(), one.what) << one.name;
    }
  }
}

// Local time for one test.
class InZone {
 public:
  explicit InZone(const char* zone) { Set(zone); }
  ~InZone() { Set("UTC"); }

 private:
  static void Set(const char* zone) {
    setenv("TZ", zone, 1);
    tzset();
  }
};

TEST(Clock, ShowsLocalTime) {
  const InZone zone("CST-8");
  TSysDateTime clock;
  clock.setTime(1709222399000);  // 2024-02-29 15:59:59 UTC
  EXPECT_EQ(clock.getDateTime().substr(0, 12), "202402292359");
  clock.setTime(1709222369001);
  EXPECT_EQ(clock.getDateTime(), "20240229235929");
  clock.setTime(1709222400000);
  EXPECT_EQ(clock.getDate(), "20240301");
  EXPECT_EQ(clock.getTime().substr(0, 4), "0000");
  EXPECT_EQ(clock.getYear(), 2024);
  EXPECT_EQ(clock.getMonth(), 3);
  EXPECT_EQ(clock.getDay(), 1);
}

TEST(Clock, RunsOn) {
  TSysDateTime clock;
  clock.setTime(1000);
  TSysDateTime last;
  last.setTime(INT64_MAX);
  const timespec pause{0, 30'000'000};
  nanosleep(&pause, nullptr);
  EXPECT_GE(clock.getMillis(), 1025);
  EXPECT_LT(clock.getMillis(), 60'000);
  EXPECT_EQ(last.getMillis(), INT64_MAX);
  EXPECT_EQ(last.getYear(), 292278994);
}

}  // namespace
