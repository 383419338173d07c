#include "repository/condition_checks.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "toolkit/conversion.h"

namespace norvik {
namespace {

constexpr DateRangeRule kOptional = {"no start", "no end", "bad start", "bad end", "reversed", nullptr};
constexpr DateRangeRule kCompulsory = {"no start", "no end", "bad start", "bad end", "reversed", "too long"};

TEST(CheckDateRange, StopsAtTheFirstFault) {
  const struct {
    const DateRangeRule& rule;
    const char* start;
    const char* end;
    const char* fault;
    bool empties;
  } cases[] = {
      {kOptional, "", "", "", false},
      {kOptional, "20260101", "20260101", "", false},
      {kOptional, "20000101", "20991231", "", false},
      {kOptional, "20260230", "2026", "bad start", false},
      {kOptional, "20260101", "2026", "bad end", false},
      {kOptional, "", "2026", "bad end", false},
      {kOptional, "20260101", "", "no end", false},
      {kOptional, "", "20260101", "no start", false},
      {kOptional, "20260102", "20260101", "reversed", true},
      {kCompulsory, "", "", "no start", false},
      {kCompulsory, "x", "", "bad start", false},
      {kCompulsory, "20260101", "", "no end", false},
      {kCompulsory, "20260101", "18991231", "bad end", false},
      {kCompulsory, "20260102", "20260101", "reversed", true},
      {kCompulsory, "20260101", "20260630", "", false},         // 180 days
      {kCompulsory, "20260101", "20260701", "too long", true},  // 181 days
  };
  for (const auto& c : cases) {
    const DateRangeFault fault = CheckDateRange(c.rule, c.start, c.end);
    EXPECT_EQ(fault.messageKey, c.fault) << c.start << " to " << c.end;
    EXPECT_EQ(fault.emptiesDates, c.empties) << c.start << " to " << c.end;
  }
}

TEST(CheckAmounts, NormalizesWhatItLooksAt) {
  const struct {
    const char* minimum;
    const char* maximum;
    const char* fault;
    const char* normalMinimum;
    const char* normalMaximum;
    bool empties = false;
  } cases[] = {
      {"", "", "", "", ""},
      {"", "5", "UI44564", "", "5.00"},
      {"5", "", "UI44565", "5.00", ""},
      {"0", "0", "UI44566", "0.00", "0.00", true},
      {"1", "-0.01", "UI44566", "1.00", "-0.01", true},
      {"7", "6.9", "UI44567", "7.00", "6.90"},
      {"1,234", "1234.00", "", "1234.00", "1234.00"},
      {"9007199254740992.99", "9007199254740993", "", "9007199254740992.99", "9007199254740993.00"},
      {"9007199254740993.00", "9007199254740992.99", "UI44567", "9007199254740993.00", "9007199254740992.99"},
      {"9999999999999.98", "9999999999999.99", "", "9999999999999.98", "9999999999999.99"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.minimum + std::string(" to ") + c.maximum);
    std::string minimum = c.minimum;
    std::string maximum = c.maximum;
    const AmountRangeFault fault = CheckAmounts(minimum, maximum);
    EXPECT_EQ(fault.messageKey, c.fault) << c.minimum << " to " << c.maximum;
    EXPECT_EQ(fault.emptiesMaximum, c.empties) << c.minimum << " to " << c.maximum;
    EXPECT_EQ(minimum, c.normalMinimum);
    EXPECT_EQ(maximum, c.normalMaximum);
  }
  std::string point = ".";
  std::string none;
  EXPECT_THROW(CheckAmounts(point, none), EConvertError);
}

TEST(AccountBatches, HoldsTwentyInARow) {
  const struct {
    int accounts;
    std::vector<int> expected;
  } cases[] = {{0, {}}, {1, {1}}, {20, {20}}, {21, {20, 1}}, {45, {20, 20, 5}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::to_string(c.accounts) + " accounts");
    std::vector<std::string> accounts;
    std::string all;
    for (int i = 0; i < c.accounts; ++i) accounts.push_back(std::to_string(i));
    for (const std::string& account : accounts) all += account + "|";
    std::string joined;
    std::vector<int> sizes;
    for (const std::string& batch : AccountBatches(accounts)) {
      sizes.push_back(1 + static_cast<int>(std::count(batch.begin(), batch.end(), '|')));
      joined += batch + "|";
    }
    EXPECT_EQ(sizes, c.expected) << c.accounts;
    EXPECT_EQ(joined, all);
  }
}

}  // namespace
}  // namespace norvik
