#include "dialogs/date_calendar.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>

#include "dialogs/calendar_form.h"
#include "tests/support/form_host.h"
#include "toolkit/application.h"

namespace {

constexpr const char* kBoth = "yyyymmddhhnnss";

struct DateCalendar : testing::Test {
  FormHost host;
};

TEST_F(DateCalendar, ReadsEightAndFourteenDigitsAndProposesNowForAllElse) {
  const TDateTime now = EncodeDate(2026, 11, 22) + EncodeTime(10, 20, 30);
  const struct {
    std::string text;
    const char* expected;
  } cases[] = {{"20150228", "20150228102030"}, {"20160229235959", "20160229235959"},
               {"", "20261122102030"},         {"20150230", "20261122102030"},
               {"20151301", "20261122102030"}, {"2015022", "20261122102030"},
               {"2015-2-1", "20261122102030"}, {"2016022923595x", "20261122102030"},
               {"00000101", "20261122102030"}, {"20160228240000", "20160229000000"},
               {"        ", "20261122102030"}, {std::string(8, '\0'), "20261122102030"}};
  for (const auto& row : cases) {
    EXPECT_EQ(FormatDateTime(kBoth, TDateCalendar::Parse(row.text, now)), row.expected) << row.text;
  }
}

TEST_F(DateCalendar, KindDecidesPanelsAndText) {
  const struct {
    TKVXDateType type;
    bool month;
    bool time;
    const char* picked;
  } cases[] = {{dtDate, true, false, "20160229"},
               {dtTime, false, true, "121314"},
               {dtDateTime, true, true, "20160229121314"}};
  int tallest = 0;
  for (const auto& row : cases) {
    SCOPED_TRACE(row.picked);
    WhenShown<TDateCalendar> step([&](TDateCalendar& form) {
      EXPECT_EQ(form.m_pnlmonth->Visible(), row.month);
      EXPECT_EQ(form.m_pnltime->Visible(), row.time);
      EXPECT_EQ(form.Caption(), "UI12093");
      EXPECT_TRUE(form.m_edthour->ReadOnly());
      if (row.month && row.time) {
        EXPECT_GT(form.Height(), tallest);
      }
      tallest = std::max(tallest, form.Height());
      form.m_btnok->Click();
    });
    EXPECT_EQ(PickDateTime("20160229121314", row.type), row.picked);
    EXPECT_TRUE(step.Came());
  }
}

TEST_F(DateCalendar, OnlyConfirmingChangesTheText) {
  using Step = std::function<void(TDateCalendar&)>;
  const struct {
    const char* way;
    Step step;
    bool confirms;
  } cases[] = {{"ok", [](TDateCalendar& form) { form.m_btnok->Click(); }, true},
               {"double click", [](TDateCalendar& form) { form.m_MonthCalendar->OnDblClick(&form); }, true},
               {"click on the time", [](TDateCalendar& form) { form.m_pnltime->Click(); }, true},
               {"cancel", [](TDateCalendar& form) { form.m_btncancel->Click(); }, false},
               {"closed", [](TDateCalendar& form) { form.Close(); }, false}};
  for (const auto& row : cases) {
    WhenShown<TDateCalendar> step([&](TDateCalendar& form) {
      form.m_MonthCalendar->SetDate(EncodeDate(2020, 5, 6));
      row.step(form);
    });
    EXPECT_EQ(PickDateTime("20150101000000", dtDate), row.confirms ? "20200506" : "20150101000000")
        << row.way;
    EXPECT_TRUE(step.Came()) << row.way;
  }
  WhenShown<TDateCalendar> cancel([](TDateCalendar& form) { form.m_btncancel->Click(); });
  EXPECT_EQ(PickDateTime("not a date", dtDate), "not a date");
}

TEST_F(DateCalendar, TheClockRunsOnIntoTheNextDay) {
  const struct {
    const char* start;
    const char* next;
  } cases[] = {{"20150101101010", "20150101101011"},
               {"20150101101059", "20150101101100"},
               {"20161231235959", "20170101000000"}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.start);
    const TFormPointer<TDateCalendar> form(
        CreateForm<TDateCalendar>(Application, std::string(row.start), dtDateTime));
    form->Show();
    EXPECT_TRUE(form->m_time->Enabled());
    EXPECT_EQ(form->m_time->Interval(), 1000);
    form->m_time->OnTimer(form->m_time);
    EXPECT_TRUE(form->m_time->Enabled());
    form->m_btnok->Click();
    EXPECT_FALSE(form->m_time->Enabled());
    EXPECT_EQ(FormatDateTime(kBoth, form->m_dateTime), row.next);
  }
}

TEST_F(DateCalendar, TheClockLeavesTheMonthThatTheUserLooksAt) {
  const TFormPointer<TDateCalendar> form(
      CreateForm<TDateCalendar>(Application, std::string("20150131235859"), dtDateTime));
  form->Show();
  auto* calendar = static_cast<QCalendarWidget*>(form->m_MonthCalendar->Widget());
  EXPECT_EQ(calendar->monthShown(), 1);
  calendar->setCurrentPage(2016, 7);
  form->m_time->OnTimer(form->m_time);
  EXPECT_EQ(calendar->monthShown(), 7);
  EXPECT_EQ(form->m_edtm->Text(), "59");
  for (int second = 0; second < 60; ++second) form->m_time->OnTimer(form->m_time);
  EXPECT_EQ(calendar->monthShown(), 2) << "the next day shows";
}

TEST_F(DateCalendar, UpAndDownStayWithinTheClock) {
  const TFormPointer<TDateCalendar> form(
      CreateForm<TDateCalendar>(Application, std::string("20150101235900"), dtDateTime));
  form->Show();
  const struct {
    TUpDown* control;
    int last;
    int shown;
  } cases[] = {{form->m_udhour, 23, 23}, {form->m_udm, 59, 59}, {form->m_uds, 59, 0}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.control->Name());
    EXPECT_EQ(row.control->Min(), 0);
    EXPECT_EQ(row.control->Max(), row.last);
    EXPECT_EQ(row.control->Position(), row.shown);
  }
  EXPECT_EQ(form->m_edthour->Text(), "23");
}

}  // namespace
