#include "framework/rules/date_range.h"

#include <gtest/gtest.h>

#include "toolkit/conversion.h"

namespace norvik {
namespace {

TEST(QuickRange, IsSeenFromTheBanksDay) {
  const struct {
    const char* today;
    QuickDate item;
    DateRange expected;
  } cases[] = {
      {"20261122", QuickDate::kToday, {"20261122", "20261122"}},
      {"20261122", QuickDate::kThisWeek, {"20261116", "20261122"}},  // a Sunday ends its week
      {"20261123", QuickDate::kThisWeek, {"20261123", "20261123"}},  // a Monday begins it
      {"20260101", QuickDate::kThisWeek, {"20251229", "20260101"}},
      {"20261122", QuickDate::kThisMonth, {"20261101", "20261122"}},
      {"20261122", QuickDate::kLastMonth, {"20261001", "20261031"}},
      {"20160315", QuickDate::kLastMonth, {"20160201", "20160229"}},
      {"20260131", QuickDate::kLastMonth, {"20251201", "20251231"}},
      {"20261122", QuickDate::kOther, {"", ""}},
      {"20261122", static_cast<QuickDate>(-1), {"", ""}},
  };
  for (const auto& c : cases) {
    const DateRange range = QuickRange(c.item, c.today);
    EXPECT_EQ(range, c.expected) << c.today << " item " << static_cast<int>(c.item) << ": " << range.start
                                 << " to " << range.end;
  }
}

TEST(QuickDateOf, StaysOnlyOnTheItemShown) {
  const struct {
    const char* today;
    DateRange range;
    QuickDate shown;
    QuickDate expected;
  } cases[] = {
      {"20261123", {"20261123", "20261123"}, QuickDate::kThisWeek, QuickDate::kThisWeek},
      {"20261123", {"20261123", "20261123"}, QuickDate::kLastMonth, QuickDate::kOther},
      {"20261123", {"20261123", "20261123"}, QuickDate::kOther, QuickDate::kOther},
      {"20261123", {"20261123", "20261122"}, QuickDate::kToday, QuickDate::kOther},
      {"20261123", {"", ""}, QuickDate::kOther, QuickDate::kOther},
      {"20261123", {"", ""}, QuickDate::kToday, QuickDate::kOther},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(QuickDateOf(c.range, c.shown, c.today), c.expected)
        << c.range.start << " to " << c.range.end << " with item " << static_cast<int>(c.shown);
  }
}

TEST(NotAfter, CutsOnlyWhatLiesAfterToday) {
  const struct {
    const char* date;
    const char* expected;
  } cases[] = {
      {"20261123", "20261122"}, {"20261122", "20261122"}, {"20261121", "20261121"}, {"", ""},
      {"2026x", "2026x"},       {"99999999", "20261122"}, {"2026", "2026"},
  };
  for (const auto& c : cases) EXPECT_EQ(NotAfter(c.date, "20261122"), c.expected) << c.date;
}

TEST(CalendarSteps, FollowTheCalendar) {
  const struct {
    std::string (*step)(const std::string&);
    const char* date;
    const char* expected;
  } cases[] = {
      {NextDayDate, "20151231", "20160101"},   {NextDayDate, "20160228", "20160229"},
      {NextDayDate, "21000228", "21000301"},   {NextDayDate, "20000228", "20000229"},
      {NextDayDate, "20150430", "20150501"},   {NextDayDate, "20151305", "20151305"},
      {NextDayDate, "20150009", "20150009"},   {NextMonthDate, "20150131", "20150228"},
      {NextMonthDate, "20160131", "20160229"}, {NextMonthDate, "20151231", "20160131"},
      {NextMonthDate, "20150331", "20150430"}, {NextMonthDate, "20150731", "20150831"},
      {NextMonthDate, "20150228", "20150328"}, {NextMonthDate, "20150130", "20150228"},
      {NextMonthDate, "20150831", "20150930"}, {NextMonthDate, "20150531", "20150630"},
      {NextMonthDate, "20150431", "20150530"}, {NextMonthDate, "20150140", "20150228"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.step(c.date), c.expected) << c.date;
}

TEST(CalendarSteps, RefuseWhatIsNoDate) {
  EXPECT_THROW(NextDayDate("2015xx01"), EConvertError);
  EXPECT_THROW(NextDayDate("2015"), EConvertError);
  EXPECT_THROW(NextMonthDate("20150240"), EConvertError);
  EXPECT_THROW(DaysBetweenDates("20150230", "20150101"), EConvertError);
  EXPECT_THROW(DaysBetweenDates("2015010a", "20150101"), EConvertError);
}

TEST(DaysBetweenDates, CountsBothWays) {
  const struct {
    const char* a;
    const char* b;
    int expected;
  } cases[] = {
      {"20260101", "20260101", 0},   {"20260101", "20260630", 180}, {"20260630", "20260101", 180},
      {"20260101", "20260701", 181}, {"20151231", "20160301", 61},  {"2026010", "20260101", -1},
      {"20260101", "", -1},          {"20260101", "202601011", -1},
  };
  for (const auto& c : cases) EXPECT_EQ(DaysBetweenDates(c.a, c.b), c.expected) << c.a << " " << c.b;
}

}  // namespace
}  // namespace norvik
