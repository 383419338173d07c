#include "toolkit/text.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "toolkit/string_list.h"

TEST(Text, IsTrimmedOfBlanksAndControlCharactersOnly) {
  const char* cases[][2] = {{"", ""},         {"  a b \r\n", "a b"},    {"\t\x01", ""},
                            {"a", "a"},       {"\xA1\xA1", "\xA1\xA1"}, {" \xD6\x20", "\xD6"},
                            {"\x7F ", "\x7F"}};
  for (const auto& row : cases) EXPECT_EQ(Trim(row[0]), row[1]) << '"' << row[0] << '"';
}

TEST(Text, CrossesTheEdgeAndComesBack) {
  for (const char* text : {"", "abc", "\xD5\xCB\xBA\xC5", "\x80", "a\xFF", "a\xB1\\b"})
    EXPECT_EQ(FromQt(ToQt(text)), text) << text;
  EXPECT_EQ(FromQt(QString::fromUtf8("\xF0\x9F\x98\x80")), "?");
  EXPECT_EQ(ToQt("a\xD5"), QString::fromUtf8("a\xEF\xBF\xBD"));
}

TEST(Text, AToolTipIsNoMarkupAndKeepsItsLines) {
  EXPECT_TRUE(ToToolTip("").isEmpty());
  EXPECT_EQ(ToToolTip("a<b>&\nc"), "<span>a&lt;b&gt;&amp;<br>c</span>");
}

TEST(Text, AToolTipOfAnyLengthStaysOnTheScreen) {
  const std::string value = Ansi("银") + std::string(1000, 'a');
  QLabel tip(ToToolTip(value));
  tip.setWordWrap(true);
  EXPECT_LT(tip.sizeHint().width(), 1000);
  EXPECT_EQ(FromQt(ToToolTip(value).remove(QChar(0x200b))), "<span>" + value + "</span>");
  EXPECT_LT(ToToolTip(std::string(2000000, 'a')).size(), 25000);
}

TEST(Strings, ReportEachChangeToTheirOwner) {
  TStrings strings;
  int changes = 0;
  strings.OnChange = [&] { ++changes; };
  EXPECT_EQ(strings.Add("b"), 0U);
  strings.Insert(0, "a");
  strings.Insert(2, "c");
  strings.SetStrings(1, "B");
  EXPECT_EQ(strings.Text(), "a\r\nB\r\nc\r\n");
  strings.Delete(0);
  EXPECT_EQ(strings.IndexOf("c"), 1);
  EXPECT_EQ(strings.IndexOf("a"), -1);
  strings.SetText("x\r\ny\n\nz");
  EXPECT_EQ(strings.Count(), 4U);
  EXPECT_EQ(strings[2], "");
  strings.Clear();
  strings.Clear();
  EXPECT_EQ(changes, 7);
  EXPECT_THROW(strings.Strings(0), std::out_of_range);
  EXPECT_THROW(strings.Insert(1, "x"), std::out_of_range);
  EXPECT_THROW(strings.Delete(0), std::out_of_range);
  EXPECT_EQ(changes, 7);
}

TEST(Strings, GatherTheirChangesInAnUpdate) {
  TStrings strings;
  int changes = 0;
  strings.OnChange = [&] { ++changes; };
  {
    const TStringsUpdate outer(strings);
    strings.Add("a");
    {
      const TStringsUpdate inner(strings);
      strings.Add("b");
    }
    EXPECT_EQ(strings.Count(), 2U);
    EXPECT_EQ(changes, 0);
  }
  EXPECT_EQ(changes, 1);
  { const TStringsUpdate nothing(strings); }
  EXPECT_EQ(changes, 1);
  strings.Add("c");
  EXPECT_EQ(changes, 2);
}
