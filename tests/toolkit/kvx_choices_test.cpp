#include <QAbstractItemView>
#include <QComboBox>
#include <QMouseEvent>
#include <QRadioButton>

#include "data/row.h"
#include "data/string_vector.h"
#include "tests/toolkit/kvx_fixture.h"
#include "toolkit/combo_box.h"
#include "toolkit/edits.h"
#include "toolkit/list_box.h"
#include "toolkit/radio_group.h"
#include "toolkit/text.h"

namespace {

class KvxChoicesTest : public KvxTest {
 protected:
  void SetUp() override {
    KvxTest::SetUp();
    combo = Put<TKVXComboBox>("m_cbxType");
    box = form->Widget()->findChild<QComboBox*>("m_cbxType");
    ASSERT_NE(box, nullptr);
    combo->OnChange = Count(changes);
  }

  void Fill() {
    corvane::Row row;
    row["AC02"] = Ansi("商业承兑汇票");
    row["-9999"] = Ansi("全部");
    row["AC01"] = Ansi("银行承兑汇票");
    combo->Init(row);
  }

  TKVXComboBox* combo = nullptr;
  QComboBox* box = nullptr;
  int changes = 0;
};

}  // namespace

TEST_F(KvxChoicesTest, InitFollowsTheKeysAndChoosesNothing) {
  Fill();
  EXPECT_EQ(combo->ItemIndex(), -1);
  EXPECT_EQ(combo->GetKey(), "");
  EXPECT_EQ(combo->FindKeyIndex("AC02"), 2);
  EXPECT_EQ(combo->FindKeyIndex("AC03"), -1);
  EXPECT_EQ(box->count(), 3);
  EXPECT_EQ(box->itemText(1), QString::fromUtf8("银行承兑汇票"));
  combo->SetItemIndex(0);
  EXPECT_EQ(combo->GetKey(), "-9999");
  EXPECT_EQ(combo->Text(), Ansi("全部"));
  combo->SetItemIndex(3);
  EXPECT_EQ(combo->ItemIndex(), -1);
  EXPECT_EQ(changes, 0);
  combo->Clear();
  EXPECT_EQ(combo->Keys().Count() + combo->Names().Count() + combo->Items().Count(), 0U);
}

TEST_F(KvxChoicesTest, OnlyTheUsersPickRunsOnChange) {
  Fill();
  combo->SetItemIndex(0);
  QTest::keyClick(box, Qt::Key_Down);
  EXPECT_EQ(combo->GetKey(), "AC01");
  EXPECT_EQ(changes, 1);
  combo->OnChange = [&](TObject*) {
    ++changes;
    combo->SetItemIndex(0);
  };
  QTest::keyClick(box, Qt::Key_Down);
  EXPECT_EQ(combo->GetKey(), "-9999");
  EXPECT_EQ(changes, 2);
  Q_EMIT box->activated(0);
  EXPECT_EQ(changes, 3) << "picking the same entry again is a pick";
}

TEST_F(KvxChoicesTest, TheChoiceStaysWithItsEntry) {
  Fill();
  combo->SetItemIndex(1);
  combo->Items().Insert(0, "first");
  combo->Keys().Insert(0, "first");
  EXPECT_EQ(combo->GetKey(), "AC01");
  combo->Items().SetStrings(2, "changed");
  EXPECT_EQ(combo->Text(), "changed");
  EXPECT_EQ(box->currentText(), "changed");
  combo->Items().Delete(2);
  EXPECT_EQ(combo->ItemIndex(), -1);
  EXPECT_EQ(changes, 0);
}

TEST_F(KvxChoicesTest, OfEqualTextsTheChosenOneStaysChosen) {
  const struct {
    const char* change;
    std::function<void(TStrings&)> run;
    int index;
  } cases[] = {{"one inserted before", [](TStrings& items) { items.Insert(0, "same"); }, 2},
               {"the other removed", [](TStrings& items) { items.Delete(0); }, 0},
               {"itself removed", [](TStrings& items) { items.Delete(1); }, -1},
               {"one added", [](TStrings& items) { items.Add("same"); }, 1}};
  for (const auto& row : cases) {
    combo->Items().Assign({"same", "same"});
    combo->SetItemIndex(1);
    combo->SetText("same");
    EXPECT_EQ(combo->ItemIndex(), 1);
    row.run(combo->Items());
    EXPECT_EQ(combo->ItemIndex(), row.index) << row.change;
  }
}

TEST_F(KvxChoicesTest, ALongEntryIsShownCompleteInItsHint) {
  combo->Items().Add(std::string(200, 'a') + "<b>");
  combo->SetItemIndex(0);
  EXPECT_LT(box->sizeHint().width(), 300);
  EXPECT_TRUE(box->itemData(0, Qt::ToolTipRole).toString().contains("a&lt;b&gt;"));
}

TEST_F(KvxChoicesTest, TheWheelOverAPanelPicksNothing) {
  Fill();
  combo->SetItemIndex(0);
  QWheelEvent wheel(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  box->clearFocus();
  QCoreApplication::sendEvent(box, &wheel);
  EXPECT_EQ(combo->ItemIndex(), 0);
}

TEST_F(KvxChoicesTest, ListBoxGivesTheSelectedKeysInOrder) {
  auto* list = Put<TKVXListBox>("m_lbxAgentStt");
  auto* view = form->Widget()->findChild<QAbstractItemView*>("m_lbxAgentStt");
  ASSERT_NE(view, nullptr);
  int clicks = 0;
  list->OnClick = Count(clicks);
  for (const char* key : {"02", "03", "07", "D0"}) {
    list->Keys().Add(key);
    list->Items().Add(std::string("state ") + key);
    if (std::string(key) != "03") list->SetSelected(static_cast<int>(list->Items().Count()) - 1, true);
  }
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(list->GetSelectedKeys(), (corvane::StringVector{"02", "07", "D0"}));
  const auto click = [&](int row) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(row, 0)).center());
  };
  click(1);
  click(0);
  EXPECT_EQ(clicks, 2);
  const corvane::StringVector selected{"03", "07", "D0"};
  EXPECT_EQ(list->GetSelectedKeys(), selected);
  QTest::keyClicks(view, "st");
  EXPECT_EQ(view->currentIndex().row(), 1) << "typing finds the next entry";
  EXPECT_EQ(list->GetSelectedKeys(), selected) << "and selects nothing";
  const auto at = [&](int row) { return view->visualRect(view->model()->index(row, 0)).center(); };
  QTest::mousePress(view->viewport(), Qt::LeftButton, {}, at(0));
  QMouseEvent move(QEvent::MouseMove, at(3), view->viewport()->mapToGlobal(at(3)), Qt::NoButton,
                   Qt::LeftButton, {});
  QCoreApplication::sendEvent(view->viewport(), &move);
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, at(3));
  EXPECT_EQ(list->GetSelectedKeys(), selected) << "a drag selects nothing";
  EXPECT_EQ(clicks, 2);
  for (int times = 0; times < 2; ++times) QTest::keyClick(view, Qt::Key_Space);
  EXPECT_EQ(clicks, 4);
  EXPECT_EQ(list->SelCount(), 3);
  list->Items().SetStrings(1, "changed");
  EXPECT_TRUE(list->Selected(1));
  EXPECT_FALSE(list->Selected(4));
  list->Clear();
  EXPECT_EQ(list->SelCount(), 0);
}

TEST_F(KvxChoicesTest, RadioGroupRunsOnClickForCodeAndUser) {
  auto* group = Put<TbsSkinRadioGroup>("m_rgSelDate");
  int clicks = 0;
  group->OnClick = Count(clicks);
  group->SetColumns(5);
  group->Items().Assign({"day", "week", "month", "last month", "other"});
  EXPECT_EQ(group->ItemIndex(), -1);
  group->SetItemIndex(4);
  group->SetItemIndex(4);
  EXPECT_EQ(clicks, 2);
  group->SetItemIndex(9);
  EXPECT_EQ(group->ItemIndex(), -1);
  EXPECT_EQ(clicks, 2);
  auto* week = form->Widget()->findChild<QRadioButton*>("m_rgSelDate_1");
  ASSERT_NE(week, nullptr);
  week->click();
  EXPECT_EQ(group->ItemIndex(), 1);
  EXPECT_EQ(clicks, 3);
  week->click();
  EXPECT_EQ(clicks, 4) << "the item that is shown";
  ASSERT_TRUE(QTest::qWaitForWindowActive(form->Widget()));
  week->setFocus();
  QTest::keyClick(week, Qt::Key_Right);
  EXPECT_EQ(group->ItemIndex(), 2);
  EXPECT_EQ(clicks, 5);
  week->setChecked(true);  // as an assistive technology does it
  EXPECT_EQ(group->ItemIndex(), 1);
  EXPECT_EQ(clicks, 6);
  group->Items().SetStrings(1, "this week");
  EXPECT_EQ(week->text(), "this week");
  EXPECT_TRUE(week->isChecked());
  group->Items().Assign({"day"});
  EXPECT_EQ(group->ItemIndex(), -1);
}

TEST_F(KvxChoicesTest, RadioItemsHaveTheGroupsFontWheneverTheyCome) {
  auto* group = Put<TbsSkinRadioGroup>("m_rgSelDate");
  group->Items().Assign({"at once"});
  group->Font()->SetSize(20);
  form->Widget()->setStyleSheet("QWidget { color: black; }");
  group->Items().Add("scheduled");
  for (const char* name : {"m_rgSelDate_0", "m_rgSelDate_1"})
    EXPECT_EQ(form->Widget()->findChild<QRadioButton*>(name)->font().pointSize(), 20) << name;
  group->Font()->SetSize(9);
  for (const char* name : {"m_rgSelDate_0", "m_rgSelDate_1"})
    EXPECT_EQ(form->Widget()->findChild<QRadioButton*>(name)->font().pointSize(), 9) << name;
}

TEST_F(KvxChoicesTest, AButtonThatTheMousePressesMovesTheFocusToItsRadioGroup) {
  auto* before = Put<TEdit>("m_edNo");
  auto* group = Put<TbsSkinRadioGroup>("m_rgSelDate");
  auto* after = Put<TEdit>("m_edLast");
  group->Items().Assign({"at once", "scheduled"});
  group->SetItemIndex(0);
  ASSERT_TRUE(QTest::qWaitForWindowActive(form->Widget()));
  before->SetFocus();
  auto* scheduled = form->Widget()->findChild<QRadioButton*>("m_rgSelDate_1");
  ASSERT_NE(scheduled, nullptr);
  QTest::mouseClick(scheduled, Qt::LeftButton, {}, QPoint(5, scheduled->height() / 2));
  EXPECT_EQ(group->ItemIndex(), 1);
  EXPECT_EQ(form->ActiveControl(), group);
  QTest::keyClick(scheduled, Qt::Key_Tab);
  EXPECT_EQ(form->ActiveControl(), after);
}
