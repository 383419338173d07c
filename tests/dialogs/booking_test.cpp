#include "dialogs/booking.h"

#include <gtest/gtest.h>

#include "dialogs/booking_form.h"
#include "dialogs/com_msg.h"
#include "tests/support/screen_host.h"
#include "toolkit/text.h"

namespace {

struct Booking : testing::Test {
  ScreenHost host;
};

TEST_F(Booking, ADateIsADayOfTheCalendarFromTheFirstToTheSameDayOfTheNextMonth) {
  const struct {
    const char *date, *first, *today, *fault;
  } cases[] = {
      {"", "20261123", "20261122", "UI42518"},         {"2026112", "20261123", "20261122", "UI42985"},
      {"2026112x", "20261123", "20261122", "UI42985"}, {"20261131", "20261123", "20261122", "UI42985"},
      {"20261122", "20261123", "20261122", "UI42987"}, {"20261122", "20261122", "20261122", ""},
      {"20261123", "20261123", "20261122", ""},        {"20261222", "20261123", "20261122", ""},
      {"20261223", "20261123", "20261122", "UI42995"}, {"20270228", "20270201", "20270131", ""},
      {"20270301", "20270201", "20270131", "UI42995"}, {"99991231", "20270201", "20270131", "UI42995"}};
  for (const auto& row : cases) {
    EXPECT_EQ(TfrmBookingProc::DateFault(row.date, row.first, row.today), row.fault)
        << row.date << " on " << row.today;
  }
}

TEST_F(Booking, GivesTheChoiceOnlyWhenConfirmed) {
  const struct {
    const char* name;
    bool startToday;
    int item;
    const char* typed;  // null: the proposed date stays
    bool confirms, scheduled;
    const char* date;
  } cases[] = {{"at once", false, TfrmBookingProc::kAtOnce, nullptr, true, false, ""},
               {"proposed day", false, TfrmBookingProc::kScheduled, nullptr, true, true, "20261123"},
               {"proposed today", true, TfrmBookingProc::kScheduled, nullptr, true, true, "20261122"},
               {"typed", false, TfrmBookingProc::kScheduled, "20261222", true, true, "20261222"},
               {"cancelled", false, TfrmBookingProc::kScheduled, nullptr, false, true, "before"}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    bool scheduled = true;
    std::string date = "before";
    WhenShown<TfrmBookingProc> step([&](TfrmBookingProc& form) {
      EXPECT_EQ(form.m_grpPreFlg->ItemIndex(), TfrmBookingProc::kAtOnce);
      EXPECT_FALSE(form.m_edtPreFlgDate->Enabled());
      form.m_grpPreFlg->SetItemIndex(row.item);
      if (row.typed != nullptr) form.m_edtPreFlgDate->SetText(row.typed);
      (row.confirms ? form.m_btnOk : form.m_btnCancel)->Click();
    });
    EXPECT_EQ(ShowBookingDlg(nullptr, row.startToday, scheduled, date), row.confirms);
    EXPECT_TRUE(step.Came());
    EXPECT_EQ(scheduled, row.scheduled);
    EXPECT_EQ(date, row.date);
  }
}

TEST_F(Booking, TheDateFollowsTheChoiceAndAWrongOneKeepsTheDialogOpen) {
  host.SetText("UI42985", "no date");
  host.SetText("UI42987", "too early");
  std::vector<std::string> messages;
  WhenShown<TfrmBookingProc> step([&](TfrmBookingProc& form) {
    form.m_grpPreFlg->SetItemIndex(TfrmBookingProc::kScheduled);
    EXPECT_TRUE(form.m_lblPreFlgDate->Enabled());
    EXPECT_TRUE(form.m_edtPreFlgDate->Enabled());
    EXPECT_TRUE(form.m_lbStar3->Visible());
    for (const char* date : {"20261122", "20261131"}) {
      form.m_edtPreFlgDate->SetText(date);
      messages.push_back(MessageOf([&] { form.m_btnOk->Click(); }));
      messages.push_back(form.m_edtPreFlgDate->Text());
      EXPECT_TRUE(form.Showing());
    }
    form.m_grpPreFlg->SetItemIndex(TfrmBookingProc::kAtOnce);
    EXPECT_FALSE(form.m_lblPreFlgDate->Enabled());
    EXPECT_FALSE(form.m_edtPreFlgDate->Enabled());
    EXPECT_FALSE(form.m_lbStar3->Visible());
    EXPECT_EQ(form.m_edtPreFlgDate->Text(), "");
    form.m_btnOk->Click();
  });
  bool scheduled = true;
  std::string date;
  EXPECT_TRUE(ShowBookingDlg(nullptr, false, scheduled, date));
  EXPECT_FALSE(scheduled);
  EXPECT_EQ(messages, (std::vector<std::string>{"too early", "20261122", "no date", ""}));
}

}  // namespace
