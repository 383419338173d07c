#include "platform/code_page.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using norvik::AnsiFromUtf8;
using norvik::Narrow;
using norvik::Utf8FromAnsi;
using norvik::Widen;

// Another code page for one test.
class InCodePage {
 public:
  explicit InCodePage(unsigned codePage) { norvik::SetAnsiCodePage(codePage); }
  ~InCodePage() { norvik::SetAnsiCodePage(936); }
};

struct Case {
  unsigned codePage;
  std::string narrow;
  std::u16string wide;
};

TEST(CodePage, WidensAndNarrows) {
  const std::vector<Case> cases = {
      {936, "A1", u"A1"},
      {936, "\xC4\xE3\xBA\xC3", u"你好"},
      {936, "\x80", u"€"},
      {936, "\x81\x5C\xFF", u"乗\xF8F5"},
      {936, "\xAA\xA1\xD6\xD0\xA1\x40\xFE\xFE", u"\xE000中\xE4C6\xE4C5"},
      {950, "\xA7\x41", u"你"},
      {932, "\x1A\x1C\x7F\x95\x5C\x81\xCA", u"\x1A\x1C\x7F表￢"},
      {949, "\x80\xB0\xA1", u"\x80가"},
      {1252, "\x80\x81\xE9", u"€\x81é"},
      {65001, "€\xF0\x9F\x98\x80", u"€😀"},
      {936, std::string(1, '\0'), std::u16string(1, u'\0')},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(Widen(one.narrow, one.codePage), one.wide) << one.codePage << " " << one.narrow;
    EXPECT_EQ(Narrow(one.wide, one.codePage), one.narrow) << one.codePage << " " << one.narrow;
  }
}

TEST(CodePage, HasOneRuleForWhatItLacks) {
  const std::vector<Case> widened = {
      {936, "a\x81", u"a\xFFFD"},
      {936, "\x81<", u"\xFFFD<"},
      {936, "\x81\x7F\x81\xFF", u"\xFFFD\x7F\xFFFD\xF8F5"},
      {949, "\xC9\x7C|", u"\xFFFD|"},
      {950, "\xA4\x80\xA4\x40", u"\xFFFD一"},
      {932, "\xA0", u"\xFFFD"},
      {65001, "\xE4\xBD", u"\xFFFD\xFFFD"},
      {65001, "\xC0\x80", u"\xFFFD\xFFFD"},
      {65001, "\xED\xA0\x80", u"\xFFFD\xFFFD\xFFFD"},
  };
  for (const Case& one : widened) EXPECT_EQ(Widen(one.narrow, one.codePage), one.wide) << one.codePage;
  const std::vector<Case> narrowed = {
      {936, "?", u"é\u0301"},
      {936, "?", u"😀"},
      {936, "a?b",
       u"a\xD83D"
       u"b"},
      {65001, "?", u"\xDE00"},
      {1252, "?", u"你"},
  };
  for (const Case& one : narrowed) {
    const std::u16string last = one.wide.size() == 2 && one.wide[1] == 0x301 ? one.wide.substr(1) : one.wide;
    EXPECT_EQ(Narrow(last, one.codePage), one.narrow) << one.codePage;
  }
}

TEST(CodePage, NarrowsUtf8OfAnyKind) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"\xE4\xBD\xA0z\xE5\xA5\xBD", "\xC4\xE3z\xBA\xC3"},
      {"\xE0\x80\xAF", "???"},
      {"\xED\xA0\x80", "???"},
      {"\xE4\xBD", "??"},
      {"\xE4z\xBD", "?z?"},
      {"\xEF\xBF\xBF", "?"},
      {"\xF0\x9F\x98\x80", "?"},
      {"abcdefghijk\xC2\xB7", "abcdefghijk\xA1\xA4"},
  };
  for (const auto& [utf8, narrow] : cases) EXPECT_EQ(AnsiFromUtf8(utf8), narrow) << utf8;
}

TEST(CodePage, BringsEveryCharacterOf936BackByteForByte) {
  int pairs = 0;
  int userDefined = 0;
  int backslashes = 0;
  for (int first = 0x81; first <= 0xFE; ++first) {
    for (int second = 0x40; second <= 0xFE; ++second) {
      const std::string pair{static_cast<char>(first), static_cast<char>(second)};
      if (norvik::CharacterLength(pair, 0) != 2) continue;
      ++pairs;
      const char16_t unit = Widen(pair)[0];
      userDefined += unit >= 0xE000 && unit < 0xF900 ? 1 : 0;
      backslashes += second == '\\' ? 1 : 0;
      ASSERT_EQ(Narrow(Widen(pair)), pair);
      ASSERT_EQ(AnsiFromUtf8(Utf8FromAnsi(pair)), pair);
    }
  }
  EXPECT_EQ(pairs, 23940);
  EXPECT_EQ(userDefined, 2149);
  EXPECT_EQ(backslashes, 126);
}

TEST(CodePage, HasOneRuleForWhereACharacterEnds) {
  for (const unsigned codePage : {932U, 936U, 949U, 950U, 65001U}) {
    const InCodePage page(codePage);
    for (unsigned code = 0x8000; code < 0x10000; ++code) {
      const std::string text{static_cast<char>(code >> 8), static_cast<char>(code & 0xFF), '<'};
      std::u16string wide;
      std::string utf8;
      for (std::size_t at = 0, size = 0; at < text.size(); at += size) {
        size = norvik::CharacterLength(text, at);
        const std::string one = text.substr(at, size);
        ASSERT_EQ(Widen(one).size(), 1U) << codePage << " " << code;
        wide += Widen(one);
        utf8 += Utf8FromAnsi(one);
        const bool has = static_cast<signed char>(one[0]) < 0 && Widen(one) != u"\xFFFD";
        ASSERT_EQ(norvik::EndOfValidRun(one, 0), has ? size : 0U) << codePage << " " << code;
      }
      ASSERT_EQ(Widen(text), wide) << codePage << " " << code;
      ASSERT_EQ(Utf8FromAnsi(text), utf8) << codePage << " " << code;
      ASSERT_EQ(wide.back(), u'<') << codePage << " " << code;
    }
  }
}

TEST(CodePage, DecodesInPiecesWithoutCuttingACharacter) {
  const std::string text = "a\xC4\xE3\xBA\xC3\x80z\x81";
  for (std::size_t limit = 1; limit < 9; ++limit) {
    std::string all;
    for (std::size_t at = 0; at < text.size();) {
      std::string piece(3 * (limit + 1), '\0');
      piece.resize(norvik::DecodeToUtf8(text, at, limit, piece.data()));
      all += piece;
    }
    EXPECT_EQ(all, "a你好€z\xEF\xBF\xBD") << limit;
  }
}

TEST(CodePage, StepsByCharacter) {
  const std::string text = "\x81\x5C\\\x81";
  EXPECT_EQ(norvik::CharacterLength(text, 0), 2U);
  EXPECT_EQ(norvik::CharacterLength(text, 2), 1U);
  EXPECT_EQ(norvik::CharacterLength(text, 3), 1U);
  EXPECT_EQ(norvik::CharacterLength(text, 4), 0U);
  EXPECT_TRUE(norvik::IsLeadByte(0x81));
  EXPECT_FALSE(norvik::IsLeadByte('a') || norvik::IsLeadByte(0x80) || norvik::IsLeadByte(0xFF));
  const InCodePage utf8(65001);
  EXPECT_EQ(norvik::CharacterLength("你", 0), 3U);
  EXPECT_FALSE(norvik::IsLeadByte(0xE4));
}

TEST(CodePage, RefusesWhatItCantServe) {
  for (const unsigned codePage : {0U, 7U, 37U, 500U, 1200U, 1258U, 50220U, 52936U, 54936U, 65000U}) {
    EXPECT_THROW(norvik::SetAnsiCodePage(codePage), std::invalid_argument) << codePage;
  }
  EXPECT_THROW(Widen("a", 1258), std::invalid_argument);
  EXPECT_EQ(norvik::AnsiCodePage(), 936U);
  for (const unsigned codePage :
       {437U, 874U, 932U, 949U, 950U, 1250U, 1251U, 1253U, 1254U, 1255U, 1256U, 1257U})
    EXPECT_EQ(Narrow(Widen("Az~\x7F\xE1\xC1", codePage), codePage), "Az~\x7F\xE1\xC1") << codePage;
}

}  // namespace
