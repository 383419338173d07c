#include <QCalendarWidget>
#include <QHeaderView>
#include <QProxyStyle>
#include <QTableView>
#include <QToolButton>

#include "tests/toolkit/kvx_fixture.h"
#include "toolkit/calendar.h"
#include "toolkit/edits.h"
#include "toolkit/layout.h"
#include "toolkit/panels.h"

namespace {

class KvxPanelTest : public KvxTest {
 protected:
  void SetUp() override {
    form = CreateForm<TForm>(Application);
    panel = NewComponent<TbsSkinExPanel>(form, "m_pnlAdvance");
    edit = NewComponent<TEdit>(form, "m_edNo");
    edit->SetTabStop(true);
    TColumnLayout page(form);
    page.Add(panel);
    page.AddStretch();
    TColumnLayout inside(panel);
    inside.Add(edit);
    inside.AddSpace(100);
    panel->OnChangeRollState = Count(changes);
    form->Show();
    header = panel->Widget()->findChild<QToolButton*>();
    ASSERT_NE(header, nullptr);
  }
  int Laid() const {
    QTest::qWait(20);
    return panel->Height();
  }

  TbsSkinExPanel* panel = nullptr;
  TEdit* edit = nullptr;
  QToolButton* header = nullptr;
  int changes = 0;
};

}  // namespace

TEST_F(KvxPanelTest, RollsUpToItsHeader) {
  const int open = Laid();
  EXPECT_GT(open, 100);
  QTest::mouseClick(header, Qt::LeftButton);
  EXPECT_TRUE(panel->RollState());
  EXPECT_EQ(Laid(), header->height());
  EXPECT_FALSE(edit->Widget()->isVisible());
  EXPECT_TRUE(edit->Visible());
  EXPECT_FALSE(edit->CanFocus());
  EXPECT_EQ(changes, 1);
  panel->SetRollState(false);
  EXPECT_EQ(Laid(), open);
  EXPECT_EQ(changes, 1);
}

TEST_F(KvxPanelTest, KeepsAHeightThatWasSetForTheOpenPanel) {
  panel->SetHeight(200);
  panel->SetRollState(true);
  EXPECT_EQ(Laid(), header->height());
  panel->SetHeight(220);
  EXPECT_EQ(Laid(), header->height());
  panel->SetRollState(false);
  EXPECT_EQ(Laid(), 220);
}

TEST_F(KvxPanelTest, RollsByTheKeyboard) {
  EXPECT_EQ(form->ActiveControl(), edit) << "the user starts after the header";
  panel->SetFocus();
  QTest::keyClick(header, Qt::Key_Return);
  EXPECT_TRUE(panel->RollState());
  QTest::keyClick(header, Qt::Key_Space);
  EXPECT_FALSE(panel->RollState());
  EXPECT_EQ(changes, 2);
}

TEST_F(KvxTest, AScrollBoxGrowsWithWhatItHoldsAndScrollsToTheFocus) {
  form = CreateForm<TForm>(Application);
  auto* box = NewComponent<TbsSkinScrollBox>(form, "m_sbx");
  TEdit* edits[] = {NewComponent<TEdit>(form, "m_ed1"), NewComponent<TEdit>(form, "m_ed2")};
  TColumnLayout page(form);
  page.Add(box);
  page.Add(NewComponent<TPanel>(form, "m_pnRest"), 1);
  TColumnLayout inside(box);
  for (TEdit* edit : edits) {
    edit->SetHeight(100);
    inside.Add(edit);
  }
  edits[1]->SetVisible(false);
  form->SetHeight(400);
  form->Show();
  QTest::qWait(20);
  EXPECT_EQ(box->Height(), 100);
  edits[1]->SetVisible(true);
  QTest::qWait(20);
  EXPECT_GE(box->Height(), 200);
  form->SetHeight(130);
  QTest::qWait(20);
  EXPECT_LE(box->Height(), 130);
  edits[1]->SetFocus();
  EXPECT_EQ(edits[1]->Widget()->visibleRegion().boundingRect().bottom(), edits[1]->Height() - 1);
}

TEST_F(KvxTest, CalendarShowsAllWeeks) {
  Put<TMonthCalendar>("m_MonthCalendar");
  form->Widget()->setStyleSheet("QTableView { border: 20px solid black; }");
  auto* view = form->Widget()->findChild<QCalendarWidget*>("m_MonthCalendar");
  view->resize(view->minimumSizeHint());
  QCoreApplication::processEvents();
  const auto* days = view->findChild<QTableView*>();
  const int last = days->model()->rowCount() - 1;
  EXPECT_LE(days->rowViewportPosition(last) + days->rowHeight(last), days->viewport()->height());
}

TEST_F(KvxTest, CalendarReportsTheUsersDayOnly) {
  auto* calendar = Put<TMonthCalendar>("m_MonthCalendar");
  auto* view = form->Widget()->findChild<QCalendarWidget*>("m_MonthCalendar");
  ASSERT_NE(view, nullptr);
  int clicks = 0;
  int doubles = 0;
  calendar->OnClick = Count(clicks);
  calendar->OnDblClick = Count(doubles);
  calendar->SetDate(EncodeDate(2016, 2, 29) + EncodeTime(23, 59, 59));
  EXPECT_EQ(calendar->Date(), EncodeDate(2016, 2, 29));
  EXPECT_EQ(view->monthShown(), 2);
  EXPECT_EQ(clicks, 0);
  view->setFocus();
  QTest::keyClick(view->findChild<QAbstractItemView*>(), Qt::Key_Right);
  EXPECT_EQ(calendar->Date(), EncodeDate(2016, 3, 1));
  EXPECT_EQ(clicks, 1);
  QTest::keyClick(view->findChild<QAbstractItemView*>(), Qt::Key_Return);
  EXPECT_EQ(doubles, 1);
}

namespace {

// A desktop that activates entries by one click, or by two.
class DesktopStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_ItemView_ActivateItemOnSingleClick ? single
                                                         : QProxyStyle::styleHint(hint, option, widget, data);
  }
  int single = 0;
};

}  // namespace

TEST_F(KvxTest, ADayIsPickedByTwoClicksOnEveryDesktop) {
  DesktopStyle style;
  for (style.single = 0; style.single < 2; ++style.single) {
    auto* calendar = Put<TMonthCalendar>("m_MonthCalendar");
    int doubles = 0;
    calendar->OnDblClick = Count(doubles);
    calendar->SetDate(EncodeDate(2016, 2, 29));
    auto* days = calendar->Widget()->findChild<QTableView*>();
    days->setStyle(&style);
    QCoreApplication::processEvents();
    const auto at = [&](int row, int column) {
      return days->visualRect(days->model()->index(row, column)).center();
    };
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, at(3, 3));
    EXPECT_NE(calendar->Date(), EncodeDate(2016, 2, 29));
    EXPECT_EQ(doubles, 0) << style.single;
    QTest::mouseDClick(days->viewport(), Qt::LeftButton, {}, at(3, 3));
    EXPECT_EQ(doubles, 1) << style.single;
    // The last row's days are those of the next month, to which the first click turns.
    QTest::mouseDClick(days->viewport(), Qt::LeftButton, {}, at(6, 6));
    QTest::mouseDClick(days->viewport(), Qt::LeftButton, {}, at(0, 3));
    EXPECT_EQ(doubles, 1) << style.single;
    delete calendar;
  }
}

TEST_F(KvxTest, TheFormSeesTheCalendarsKeysFirst) {
  auto* calendar = Put<TMonthCalendar>("m_MonthCalendar");
  calendar->SetDate(EncodeDate(2016, 2, 28));
  std::vector<int> seen;
  form->SetKeyPreview(true);
  form->OnKeyDown = [&](TObject*, std::uint16_t& key, TShiftState) {
    seen.push_back(key);
    if (key == VK_DOWN) key = 0;
  };
  auto* days = calendar->Widget()->findChild<QAbstractItemView*>();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Escape}) QTest::keyClick(days, key);
  EXPECT_EQ(seen, (std::vector<int>{VK_DOWN, VK_RIGHT, VK_ESCAPE}));
  EXPECT_EQ(calendar->Date(), EncodeDate(2016, 2, 29));
}

TEST_F(KvxTest, ACalendarShowsTheFullWeekWhateverRoomASkinGivesHeadings) {
  auto* calendar = Put<TMonthCalendar>("m_MonthCalendar");
  form->Widget()->setStyleSheet("QHeaderView::section { padding: 9px 16px; font-weight: bold; }");
  calendar->Widget()->resize(calendar->Widget()->minimumSizeHint());
  QCoreApplication::processEvents();
  const auto* days = calendar->Widget()->findChild<QTableView*>();
  EXPECT_LE(days->horizontalHeader()->length(), days->viewport()->width());
}

TEST_F(KvxTest, UpDownCountsWithinItsBounds) {
  auto* edit = Put<TEdit>("m_edthour");
  auto* arrows = Put<TUpDown>("m_udhour");
  arrows->SetRange(0, 23);
  arrows->SetAssociate(edit);
  const auto buttons = arrows->Widget()->findChildren<QToolButton*>();
  ASSERT_EQ(buttons.size(), 2);
  edit->SetText("22");
  buttons[0]->click();
  buttons[0]->click();
  EXPECT_EQ(edit->Text(), "23");
  QTest::keyClick(edit->Widget(), Qt::Key_Down);
  EXPECT_EQ(edit->Text(), "22");
  QTest::keyClick(edit->Widget(), Qt::Key_Up);
  EXPECT_EQ(edit->Text(), "23");
  edit->SetText("none");
  EXPECT_EQ(arrows->Position(), 23);
  arrows->SetPosition(-5);
  EXPECT_EQ(edit->Text(), "0");
  buttons[1]->click();
  EXPECT_EQ(edit->Text(), "0");
  delete edit;
  buttons[0]->click();
  EXPECT_EQ(arrows->Position(), 1);
}
