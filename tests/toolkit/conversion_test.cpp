#include "toolkit/conversion.h"

#include <gtest/gtest.h>

#include "toolkit/decimal.h"

TEST(Conversion, WholeNumbers) {
  struct Case {
    const char* text;
    bool good;
    int value;
  };
  const Case cases[] = {
      {"0", true, 0},
      {"-12", true, -12},
      {"2147483647", true, 2147483647},
      {"-2147483648", true, -2147483647 - 1},
      {"", false, 0},
      {"+7", false, 0},
      {" 42", false, 0},
      {"12 ", false, 0},
      {"$1F", false, 0},
      {"0x10", false, 0},
      {"1.5", false, 0},
      {"2147483648", false, 0},
      {"--1", false, 0},
      {"abc", false, 0},
      {"99999999999999999999", false, 0},
      {"1\0", true, 1},
      {"-", false, 0},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.text);
    if (row.good) {
      EXPECT_EQ(StrToInt(row.text), row.value);
    } else {
      EXPECT_THROW(StrToInt(row.text), EConvertError);
    }
    EXPECT_EQ(StrToIntDef(row.text, -99), row.good ? row.value : -99);
  }
}

TEST(Conversion, DecimalNumbersKeepEveryDigit) {
  const struct {
    const char* text;
    const char* fixed;  // with two decimals; null: refused
  } cases[] = {
      {"1234.50", "1234.50"},
      {" 0.01 ", "0.01"},
      {"+3", "3.00"},
      {".5", "0.50"},
      {"5.", "5.00"},
      {"00012", "12.00"},
      {"-0", "-0.00"},
      {"1e3", "1000.00"},
      {"12.5E-1", "1.25"},
      {"1e+2", "100.00"},
      {"1e-300", "0.00"},
      {"0.005", "0.00"},  // a tie goes to the even digit
      {"0.015", "0.02"},
      {"0.00500000000000000000001", "0.01"},
      {"-9.995", "-10.00"},
      {"99.994", "99.99"},
      {"123456789012345678901234567890123456789.01", "123456789012345678901234567890123456789.01"},
      {"", nullptr},
      {".", nullptr},
      {"+", nullptr},
      {"+-1", nullptr},
      {"1,234", nullptr},
      {"1.2.3", nullptr},
      {"12a", nullptr},
      {"inf", nullptr},
      {"1 2", nullptr},
      {"0x10", nullptr},
      {"1e", nullptr},
      {"1e+-2", nullptr},
      {"1e999", nullptr},
  };
  for (const auto& row : cases) {
    if (row.fixed != nullptr) {
      EXPECT_EQ(TDecimal(row.text).ToFixed(2), row.fixed) << row.text;
    } else {
      EXPECT_THROW(TDecimal(row.text), EConvertError) << row.text;
    }
  }
  EXPECT_EQ(TDecimal().ToFixed(2), "0.00");
}

TEST(Conversion, DecimalNumbersAreSummedAndCompared) {
  const struct {
    const char *a, *b, *sum;
    int order;
  } cases[] = {{"100000000000000", "0.01", "100000000000000.010", 1},
               {"99.99", "0.011", "100.001", 1},
               {"5", "-7.5", "-2.500", 1},
               {"-7.5", "5", "-2.500", -1},
               {"1000", "-0.001", "999.999", 1},
               {"-1", "-2", "-3.000", 1},
               {"3.10", "-3.1", "0.000", 1},
               {"2.50", "2.5", "5.000", 0},
               {"-0", "0", "0.000", 0}};
  for (const auto& row : cases) {
    TDecimal sum(row.a);
    sum += TDecimal(row.b);
    EXPECT_EQ(sum.ToFixed(3), row.sum) << row.a << " + " << row.b;
    const auto order = TDecimal(row.a) <=> TDecimal(row.b);
    EXPECT_EQ(order < 0 ? -1 : order > 0 ? 1 : 0, row.order) << row.a << " <=> " << row.b;
  }
}

TEST(Conversion, Dates) {
  EXPECT_EQ(EncodeDate(1899, 12, 30), 0);
  EXPECT_EQ(EncodeDate(2000, 1, 1), 36526);
  const int bad[][3] = {{2015, 2, 30},  {2015, 2, 29}, {2100, 2, 29}, {0, 1, 1},
                        {10000, 1, 1},  {2015, 13, 1}, {2015, 0, 1},  {2015, 1, 0},
                        {2015, 1, 257}, {2015, -1, 1}, {2015, 4, 31}};
  for (const auto& date : bad) {
    EXPECT_THROW(EncodeDate(date[0], date[1], date[2]), EConvertError)
        << date[0] << '-' << date[1] << '-' << date[2];
  }
  int year = 0, month = 0, day = 0;
  DecodeDate(EncodeDate(2016, 2, 29) + EncodeTime(23, 59, 59), year, month, day);
  EXPECT_EQ((std::vector<int>{year, month, day}), (std::vector<int>{2016, 2, 29}));
}

TEST(Conversion, TimesAndTheStepOverMidnight) {
  const TDateTime last = EncodeDate(2015, 12, 31) + EncodeTime(23, 59, 59);
  EXPECT_EQ(DateTimeToStr(last), "2015-12-31 23:59:59");
  EXPECT_EQ(DateTimeToStr(IncSecond(last)), "2016-01-01 00:00:00");
  EXPECT_EQ(DateTimeToStr(IncSecond(EncodeDate(2016, 1, 1), -1)), "2015-12-31 23:59:59");
  const int bad[][4] = {{24, 0, 0, 0}, {0, 60, 0, 0}, {0, 0, 60, 0}, {0, 0, 0, 1000}, {-1, 0, 0, 0}};
  for (const auto& time : bad) {
    EXPECT_THROW(EncodeTime(time[0], time[1], time[2], time[3]), EConvertError)
        << time[0] << ':' << time[1] << ':' << time[2] << '.' << time[3];
  }
  // Every second of a day is kept by the fraction.
  for (int second = 0; second < 86400; ++second) {
    int h = 0, m = 0, s = 0, ms = 0;
    DecodeTime(EncodeDate(2026, 6, 30) + EncodeTime(second / 3600, second / 60 % 60, second % 60), h, m, s,
               ms);
    ASSERT_EQ((h * 60 + m) * 60 + s, second);
    ASSERT_EQ(ms, 0) << second;
  }
}

TEST(Conversion, Patterns) {
  const TDateTime value = EncodeDate(2026, 3, 7) + EncodeTime(4, 5, 6);
  struct Case {
    const char* pattern;
    const char* expected;
  };
  const Case cases[] = {{"yyyymmdd", "20260307"},
                        {"hhmmss", "040506"},
                        {"yyyymmddhhmmss", "20260307040506"},
                        {"yyyymmddhhnnss", "20260307040506"},
                        {"yy/m/d", "26/3/7"},
                        {"hh:mm", "04:05"}};
  for (const Case& row : cases) EXPECT_EQ(FormatDateTime(row.pattern, value), row.expected) << row.pattern;
  int year = 0, month = 0, day = 0;
  DecodeDate(Now(), year, month, day);
  EXPECT_GE(year, 2024);
}
