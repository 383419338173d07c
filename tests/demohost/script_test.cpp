#include "demohost/script/script.h"

#include <gtest/gtest.h>

#include "demohost/script/aligned_table.h"

namespace demohost {
namespace {

TEST(Script, ReadsWordsQuotesAndComments) {
  const auto steps = ParseScript(
      "# first\n\n  pick ITEM6066  # the screen\nset m_edNo \"a \\\"b\\\" \\\\ \\n#\"\r\nset m_edNo\n");
  ASSERT_EQ(steps.size(), 3u);
  EXPECT_EQ(steps[0].line, 3);
  EXPECT_EQ(steps[0].command, "pick");
  EXPECT_EQ(steps[0].words, QStringList{"ITEM6066"});
  EXPECT_EQ(steps[1].words, (QStringList{"m_edNo", "a \"b\" \\ \n#"}));
  EXPECT_EQ(steps[2].words, QStringList{"m_edNo"});
}

TEST(Script, NamesTheLineAndTheReasonOfAFault) {
  const struct {
    const char* script;
    const char* reason;
  } cases[] = {
      {"pick A\npack B\n", "line 2: unknown command \"pack\""},
      {"pick\n", "line 1: expected: pick ITEM"},
      {"pick A B\n", "line 1: expected: pick ITEM"},
      {"type \"open\n", "line 1: the quote isn't closed"},
      {"type \"a\\b\"\n", "line 1: inside quotes a backslash stands before a quote, a backslash or an n"},
      {"expect luck today\n", "line 1: unknown expectation \"luck\""},
      {"expect text m_x\n", "line 1: expected: expect text CONTROL TEXT"},
      {"tick 3-1\n", "line 1: a number is wrong"},
      {"tick 0\n", "line 1: a number is wrong"},
      {"tick 1-99999999\n", "line 1: a number is wrong"},
      {"wait soon\n", "line 1: a number is wrong"},
      {"font Sans big\n", "line 1: a number is wrong"},
  };
  for (const auto& [script, reason] : cases) {
    try {
      ParseScript(script);
      ADD_FAILURE() << "played: " << script;
    } catch (const ScriptError& error) {
      EXPECT_STREQ(error.what(), reason) << script;
    }
  }
}

TEST(AlignedTable, LaysColumnsOut) {
  const QString table = AlignedTable({{"票号", false}, {"Amount", true}, {"状态", false}},
                                     {{"31", "5.00", "在库"}, {"x\ty\n", "1234567.50", ""}, {"short"}});
  EXPECT_EQ(table.toStdString(),
            "票号       Amount  状态\n"
            "-----  ----------  ----\n"
            "31           5.00  在库\n"
            "x y    1234567.50\n"
            "short\n");
}

}  // namespace
}  // namespace demohost
