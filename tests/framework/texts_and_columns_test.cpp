// The pure parts of the business objects: amounts, state codes, the order of columns, names of export files.
#include <gtest/gtest.h>

#include "framework/columns/column_table.h"
#include "framework/columns/export_rules.h"
#include "framework/rules/amount_text.h"
#include "framework/rules/state_texts.h"
#include "toolkit/conversion.h"

namespace norvik {
namespace {

TEST(NormalizeAmountText, GivesTwoDecimals) {
  const struct {
    std::string text;
    std::string expected;
    bool wasNormal;
  } cases[] = {
      {"1,234,567.5", "1234567.50", false},
      {"1234.50", "1234.50", true},
      {"1,234.50", "1234.50", true},
      {"5", "5.00", false},
      {"-3.999", "-4.00", false},
      {"100000000000000.01", "100000000000000.01", true},  // a cent that a 64-bit float loses
      {"9,007,199,254,740,993.25", "9007199254740993.25", true},
      {",,5,,", "5.00", false},
      {"007.10", "7.10", false},
      {std::string("12.00\0junk", 10), "12.00", true},
      {std::string(99, '0') + "1", "1.00", false},
      {std::string(400, ','), "", false},
  };
  for (const auto& c : cases) {
    std::string out = "left over";
    if (c.expected.empty()) {
      EXPECT_THROW(NormalizeAmountText(c.text, out), EConvertError) << c.text;
      continue;
    }
    EXPECT_EQ(NormalizeAmountText(c.text, out), c.wasNormal) << c.text;
    EXPECT_EQ(out, c.expected) << c.text;
  }
  std::string out;
  for (const char* text : {"", ".", "1.2.3", "12 yuan", "1e"}) {
    EXPECT_THROW(NormalizeAmountText(text, out), EConvertError) << text;
  }
}

TEST(StateTextKey, FollowsTheTable) {
  const struct {
    const char* code;
    const char* expected;
  } cases[] = {
      {"", "UI52150"},   {"0", "UI52140"},  {"1", "UI52141"},  {"6", "UI52146"},  {"7", "UI52879"},
      {"8", "UI52148"},  {"9", "UI52149"},  {"10", "UI52150"}, {"12", "UI52152"}, {"13", "UI52359"},
      {"14", "UI52360"}, {"15", "UI52372"}, {"16", ""},        {"-1", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(StateTextKey(c.code, "UI52879"), c.expected) << c.code;
  EXPECT_THROW(StateTextKey("sent", "UI52879"), EConvertError);
  EXPECT_EQ(ApprovalTextKey("0"), "UI52424");
  EXPECT_EQ(ApprovalTextKey("7"), "UI52431");
  for (const char* code : {"8", "", "00", "-", "x"}) EXPECT_EQ(ApprovalTextKey(code), "") << code;
}

TEST(ColumnTag, FollowsTheTable) {
  const struct {
    const char* format;
    int tag;
  } cases[] = {{"C", 0}, {"M", 2}, {"R", 5}, {"N", 4}, {"X", 100}, {"", 0}, {"m", 0}, {"MM", 0}};
  for (const auto& c : cases) EXPECT_EQ(ColumnTag(c.format), c.tag) << c.format;
}

TEST(IsTextFileName, LooksBehindTheLastDot) {
  for (const char* name : {"a.txt", "a.TXT", "/tmp/a.b/c.tXt"}) EXPECT_TRUE(IsTextFileName(name)) << name;
  for (const char* name : {"a.xls", "txt", "", "a.", "a.txt.xls", "a.txt/b"}) {
    EXPECT_FALSE(IsTextFileName(name)) << name;
  }
}

}  // namespace
}  // namespace norvik
