#include "dialogs/validators.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();

TEST(Validators, CheckDateTellsDigitsFromCalendar) {
  const struct {
    const char* text;
    const char* key;
  } cases[] = {
      {"", "ET11019"},         {"2015010", "ET11019"},  {"201501011", "ET11019"}, {"2015O101", "ET11019"},
      {"2015-1-1", "ET11019"}, {" 2015010", "ET11019"}, {"0x150101", "ET11019"},  {"20151301", "ET11018"},
      {"20150001", "ET11018"}, {"20150100", "ET11018"}, {"20150132", "ET11018"},  {"20150431", "ET11018"},
      {"20150230", "ET11018"}, {"20150229", "ET11018"}, {"19000229", "ET11018"},  {"18991231", "ET11018"},
      {"00000000", "ET11018"}, {"20000229", ""},        {"20160229", ""},         {"19000101", ""},
      {"99991231", ""},        {"20150430", ""},        {"20150631", "ET11018"},  {"20150931", "ET11018"},
      {"20151131", "ET11018"}, {"20150831", ""},        {"20151031", ""},
  };
  for (const auto& row : cases) EXPECT_EQ(CheckDate(row.text), row.key) << row.text;
}

TEST(Validators, NumbersOutsideAnyTextRangeAreNoDate) {
  EXPECT_FALSE(IsValidDate(10000, 1, 1));
  EXPECT_FALSE(IsValidDate(2015, kHighest, 1));
  EXPECT_FALSE(IsValidDate(2015, kLowest, 1));
  EXPECT_FALSE(IsValidDate(2015, 1, kLowest));
  EXPECT_TRUE(IsValidDate(2400, 2, 29));
}

TEST(Validators, AllDigits) {
  EXPECT_TRUE(IsAllDigits(""));
  EXPECT_TRUE(IsAllDigits("0123456789"));
  for (const char* text : {"-1", "1 ", "1.0", "\xa3\xb1", "/", ":"}) EXPECT_FALSE(IsAllDigits(text)) << text;
  EXPECT_FALSE(IsAllDigits(std::string("1\0", 2)));
}

TEST(Validators, ParseNumberIsDefinedForEveryText) {
  const struct {
    const char* text;
    std::int32_t value;
  } cases[] = {
      {"", 0},
      {"abc", 0},
      {"08", 8},
      {" \t+42rest", 42},
      {"-17", -17},
      {"--1", 0},
      {"0", 0},
      {"0x", 0},
      {"0xg", 0},
      {"0x1F", 31},
      {"0Xff.", 255},
      {"0x0x10", 16},
      {"0x-1", -1},
      {"0xFFFFFFFF", -1},
      {"0x80000000", kLowest},
      {"0x123456789", -1},
      {"2147483647", kHighest},
      {"2147483648", kHighest},
      {"99999999999999999999999999", kHighest},
      {"-2147483648", kLowest},
      {"-99999999999999999999999999", kLowest},
  };
  for (const auto& row : cases) EXPECT_EQ(ParseNumber(row.text), row.value) << row.text;
}

TEST(Validators, FormatAmountGroupsAndCuts) {
  const struct {
    const char* text;
    const char* amount;
  } cases[] = {
      {"", "0.00"},
      {"5", "5.00"},
      {"12", "12.00"},
      {"999", "999.00"},
      {"1234", "1,234.00"},
      {"123456", "123,456.00"},
      {"-1000", "-1,000.00"},
      {"-100", "-100.00"},
      {"1234567.891", "1,234,567.89"},
      {".5", ".50"},
      {"1.999", "1.99"},
      {"1.", "1.00"},
      {"-", "-.00"},
      {"--1", "--1.00"},
      {"1.2.3", "1.2."},
      {"abcdefg", "a,bcd,efg.00"},
      {"12345678901234567890.1", "12,345,678,901,234,567,890.10"},
  };
  for (const auto& row : cases) EXPECT_EQ(FormatAmount(row.text), row.amount) << row.text;
}

}  // namespace
