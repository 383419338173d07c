#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

#include "tests/toolkit/test_form.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/image_list.h"
#include "toolkit/menu.h"
#include "toolkit/tabs.h"

namespace {

class ControlTest : public testing::Test {
 protected:
  void SetUp() override {
    form = CreateForm<TTestForm>(Application);
    form->Show();
  }
  TTestForm* form = nullptr;
};

}  // namespace

TEST_F(ControlTest, ShowsOnlyWithItsParents) {
  QWidget* label = form->m_lbText->Widget();
  EXPECT_TRUE(label->isVisible());
  form->m_pnTop->SetVisible(false);
  EXPECT_FALSE(label->isVisible());
  EXPECT_TRUE(form->m_lbText->Visible());
  form->m_lbText->SetVisible(false);
  form->m_pnTop->SetVisible(true);
  EXPECT_FALSE(label->isVisible());
}

TEST_F(ControlTest, AControlWithoutAParentNeverOpensAsAWindow) {
  auto* label = NewComponent<TLabel>(form, "m_lbLoose");
  label->SetVisible(false);
  label->SetVisible(true);
  EXPECT_FALSE(label->Widget()->isVisible());
  label->SetParent(form->m_pnTop);
  EXPECT_TRUE(label->Widget()->isVisible());
  label->SetParent(nullptr);
  EXPECT_FALSE(label->Widget()->isVisible());
}

TEST_F(ControlTest, DeletingAControlTakesItOffItsParentAndForm) {
  const int controls = form->m_pnTop->ControlCount();
  delete form->m_lbText;
  EXPECT_EQ(form->m_pnTop->ControlCount(), controls - 1);
  EXPECT_EQ(form->FindComponent("m_lbText"), nullptr);
  EXPECT_EQ(form->Widget()->findChild<QLabel*>("m_lbText"), nullptr);
}

TEST_F(ControlTest, TextsAreNeverReadAsMarkup) {
  form->m_lbText->SetCaption("<b>bold</b>");
  EXPECT_EQ(static_cast<QLabel*>(form->m_lbText->Widget())->textFormat(), Qt::PlainText);
  form->m_lbText->SetHint("<img src='file:///etc/passwd'>");
  EXPECT_TRUE(form->m_lbText->Widget()->toolTip().isEmpty());
  form->m_lbText->SetShowHint(true);
  EXPECT_EQ(form->m_lbText->Widget()->toolTip(), "<span>&lt;img src='file:///etc/passwd'&gt;</span>");
}

TEST_F(ControlTest, MouseEventsComeInTheirOrderAndGraphicControlsKeepTheirs) {
  std::vector<std::string> seen;
  const auto note = [&](const char* what) { return [&seen, what](TObject*) { seen.push_back(what); }; };
  const auto point = [&](const char* what) {
    return [&seen, what](TObject*, TMouseButton button, TShiftState, int x, int) {
      seen.push_back(std::string(what) + (button == mbRight ? " right " : " left ") + std::to_string(x));
    };
  };
  form->m_lbText->OnClick = note("click");
  form->m_lbText->OnDblClick = note("double");
  form->m_lbText->OnMouseDown = point("down");
  form->m_lbText->OnMouseUp = point("up");
  form->m_pnTop->OnClick = note("panel");
  QWidget* label = form->m_lbText->Widget();
  label->setFixedSize(40, 20);
  QTest::mouseClick(label, Qt::LeftButton, {}, {3, 4});
  QTest::mouseClick(label, Qt::RightButton, {}, {5, 4});
  QTest::mousePress(label, Qt::LeftButton, {}, {3, 4});
  QTest::mouseRelease(label, Qt::LeftButton, {}, {300, 4});
  QTest::mouseDClick(label, Qt::LeftButton, {}, {3, 4});
  const std::vector<std::string> expected = {"down left 3",  "click",      "up left 3",
                                             "down right 5", "up right 5", "down left 3",
                                             "up left 300",  "double",     "down left 3"};
  EXPECT_EQ(seen, expected);
  seen.clear();
  QTest::mouseClick(form->m_pnTop->Widget(), Qt::LeftButton, {}, {1, 1});
  EXPECT_EQ(seen, (std::vector<std::string>{"panel"}));
}

TEST_F(ControlTest, AFailingHandlerIsReportedAndNothingElseHappens) {
  int reported = 0;
  Application->OnException = [&](TObject* sender, std::exception_ptr) {
    reported += sender == form->m_btnFirst;
  };
  form->m_btnFirst->OnClick = [](TObject*) { throw std::runtime_error("refused"); };
  QTest::mouseClick(form->m_btnFirst->Widget(), Qt::LeftButton);
  EXPECT_EQ(reported, 1);
}

TEST_F(ControlTest, ADisabledButtonDoesNothing) {
  int clicks = 0;
  form->m_btnFirst->OnClick = [&](TObject*) { ++clicks; };
  form->m_btnFirst->SetEnabled(false);
  QTest::mouseClick(form->m_btnFirst->Widget(), Qt::LeftButton);
  form->m_btnFirst->Click();
  EXPECT_EQ(clicks, 0);
  form->m_btnFirst->SetEnabled(true);
  QTest::mouseClick(form->m_btnFirst->Widget(), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlTest, ACheckBoxChangesBeforeItsClickAndCodeRunsNone) {
  std::string seen;
  form->m_crbTick->OnClick = [&](TObject*) { seen += form->m_crbTick->Checked() ? "on " : "off "; };
  form->m_crbTick->SetChecked(true);
  EXPECT_EQ(seen, "");
  QTest::mouseClick(form->m_crbTick->Widget(), Qt::LeftButton, {}, {5, form->m_crbTick->Height() / 2});
  QTest::keyClick(form->m_crbTick->Widget(), Qt::Key_Space);
  EXPECT_EQ(seen, "off on ");
}

TEST_F(ControlTest, AnActionDrivesAllThatIsBoundToIt) {
  auto* list = NewComponent<TActionList>(form, "m_alMain");
  auto* images = NewComponent<TImageList>(form, "m_iglQuery");
  images->Add(siQuery);
  list->SetImages(images);
  TAction* action = list->NewAction("m_actQuery", "UI12501", 0);
  auto* menu = NewComponent<TPopupMenu>(form, "m_pmu");
  TMenuItem* item = menu->Items()->AddAction(action);
  form->m_btnFirst->SetAction(action);
  form->m_crbTick->SetAction(action);
  int executed = 0;
  action->OnExecute = [&](TObject* sender) { executed += sender == action; };

  action->SetCaption("Query");
  action->SetHint("Ask the bank");
  action->SetChecked(true);
  EXPECT_EQ(form->m_btnFirst->Caption(), "Query");
  EXPECT_EQ(form->m_btnFirst->Hint(), "Ask the bank");
  EXPECT_FALSE(static_cast<QAbstractButton*>(form->m_btnFirst->Widget())->icon().isNull());
  EXPECT_TRUE(form->m_crbTick->Checked());
  EXPECT_EQ(item->Caption(), "Query");
  EXPECT_TRUE(item->Checked());
  QTest::mouseClick(form->m_btnFirst->Widget(), Qt::LeftButton);
  item->Click();
  EXPECT_EQ(executed, 2);

  action->SetEnabled(false);
  EXPECT_FALSE(form->m_btnFirst->Widget()->isEnabled());
  form->m_btnFirst->Click();
  item->Click();
  EXPECT_FALSE(action->Execute());
  EXPECT_EQ(executed, 2);
  action->SetVisible(false);
  EXPECT_FALSE(form->m_btnFirst->Widget()->isVisible());

  delete action;
  EXPECT_EQ(list->ActionCount(), 0);
  EXPECT_EQ(form->m_btnFirst->Action(), nullptr);
  EXPECT_EQ(item->Action(), nullptr);
}

TEST_F(ControlTest, WhatABoundControlWasGivenForItselfStays) {
  auto* action = NewComponent<TAction>(form, "m_act");
  TMenuItem* item = NewComponent<TPopupMenu>(form, "m_pmu")->Items()->AddAction(action);
  TbsSkinButton* own = form->m_btnFirst;
  TbsSkinButton* plain = form->m_btnSecond;
  for (TControl* bound : {static_cast<TControl*>(own), static_cast<TControl*>(plain),
                          static_cast<TControl*>(form->m_crbTick)}) {
    bound->SetAction(action);
  }
  own->SetCaption("own");
  own->SetHint("own hint");
  own->SetVisible(false);
  item->SetCaption("own");
  item->SetVisible(false);
  form->m_crbTick->SetChecked(true);
  action->SetEnabled(false);
  action->SetCaption("changed");
  action->SetHint("hint");
  action->SetVisible(true);
  EXPECT_EQ(own->Caption() + "," + own->Hint() + "," + item->Caption(), "own,own hint,own");
  EXPECT_EQ(plain->Caption() + "," + plain->Hint(), "changed,hint");
  EXPECT_FALSE(own->Visible() || item->Visible() || own->Enabled() || item->Enabled());
  EXPECT_TRUE(form->m_crbTick->Checked());
}

TEST_F(ControlTest, OnClickRunsInPlaceOfTheAction) {
  auto* action = NewComponent<TAction>(form, "m_act");
  std::string seen;
  action->OnExecute = [&](TObject*) { seen += "action "; };
  form->m_btnFirst->SetAction(action);
  form->m_btnFirst->Click();
  form->m_btnFirst->OnClick = [&](TObject*) { seen += "click "; };
  form->m_btnFirst->Click();
  EXPECT_EQ(seen, "action click ");
}

TEST_F(ControlTest, AlignedControlsShareTheClientArea) {
  auto* box = NewComponent<TPanel>(form, "m_box");
  TPanel* parts[5];
  const char* const names[] = {"client", "top", "left", "bottom", "right"};
  const TAlign aligns[] = {alClient, alTop, alLeft, alBottom, alRight};
  for (int i = 0; i < 5; ++i) {
    parts[i] = NewComponent<TPanel>(form, names[i]);
    parts[i]->SetParent(box);
    parts[i]->SetAlign(aligns[i]);
    parts[i]->SetWidth(10);
    parts[i]->SetHeight(10);
  }
  box->SetParent(form);
  box->SetWidth(100);
  box->SetHeight(80);
  QApplication::processEvents();
  const QRect expected[] = {
      {10, 10, 80, 60}, {0, 0, 100, 10}, {0, 10, 10, 60}, {0, 70, 100, 10}, {90, 10, 10, 60}};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(parts[i]->Widget()->geometry(), expected[i]) << parts[i]->Name();
  parts[1]->SetVisible(false);
  EXPECT_EQ(parts[0]->Widget()->geometry(), QRect(10, 0, 80, 70));
}

TEST_F(ControlTest, PagesShowTheirCaptionsOnTheTabs) {
  auto* tabs = NewComponent<TPageControl>(form, "m_tabs");
  tabs->SetParent(form);
  for (const char* caption : {"one", "two"}) {
    auto* page = NewComponent<TTabSheet>(form, caption);
    page->SetCaption(caption);
    tabs->AddPage(page);
  }
  ASSERT_EQ(tabs->PageCount(), 2);
  EXPECT_EQ(tabs->ActivePageIndex(), 0);
  tabs->SetActivePageIndex(1);
  tabs->SetActivePageIndex(7);
  EXPECT_EQ(tabs->ActivePageIndex(), 1);
  tabs->Pages(1)->SetCaption("second");
  EXPECT_EQ(static_cast<QTabWidget*>(tabs->Widget())->tabText(1), "second");
}
