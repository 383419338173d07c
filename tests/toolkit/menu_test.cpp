#include "toolkit/menu.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include "tests/toolkit/test_form.h"
#include "toolkit/action.h"
#include "toolkit/application.h"

namespace {

class MenuTest : public testing::Test {
 protected:
  void SetUp() override {
    form = CreateForm<TTestForm>(Application);
    form->Show();
    menu = NewComponent<TPopupMenu>(form, "m_pumColumn");
  }
  TMenuItem* Add(const char* caption) {
    auto* item = new TMenuItem(form);
    item->SetCaption(caption);
    menu->Items()->Add(item);
    return item;
  }
  TTestForm* form = nullptr;
  TPopupMenu* menu = nullptr;
};

}  // namespace

TEST_F(MenuTest, OpensAsAMenuOfQtWithItsVisibleEntries) {
  Add("one");
  menu->Items()->AddLine();
  TMenuItem* hidden = Add("hidden");
  hidden->SetVisible(false);
  TMenuItem* sub = Add("more");
  auto* inner = new TMenuItem(form);
  inner->SetCaption("inner");
  sub->Add(inner);
  TMenuItem* off = Add("off");
  off->SetEnabled(false);
  TMenuItem* ticked = Add("ticked");
  ticked->SetChecked(true);

  menu->Popup(30, 40);
  auto* shown = form->Widget()->findChild<QMenu*>("m_pumColumn");
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(QApplication::activePopupWidget(), shown);
  const QList<QAction*> entries = shown->actions();
  ASSERT_EQ(entries.size(), 5);
  EXPECT_EQ(entries[0]->text(), "one");
  EXPECT_TRUE(entries[1]->isSeparator());
  ASSERT_NE(entries[2]->menu(), nullptr);
  EXPECT_EQ(entries[2]->menu()->actions()[0]->text(), "inner");
  EXPECT_FALSE(entries[3]->isEnabled());
  EXPECT_TRUE(entries[4]->isChecked());
  menu->Close();
}

TEST_F(MenuTest, AClickInvertsTheCheckBeforeItsHandlerRuns) {
  TMenuItem* item = Add("column");
  item->SetAutoCheck(true);
  item->SetTag(7);
  std::vector<bool> seen;
  item->OnClick = [&](TObject* sender) {
    EXPECT_EQ(static_cast<TComponent*>(sender)->Tag(), 7);
    seen.push_back(item->Checked());
  };
  for (int i = 0; i < 2; ++i) {
    menu->Popup(0, 0);
    QTest::mouseClick(menu->Widget(), Qt::LeftButton, {},
                      menu->Widget()->actionGeometry(menu->Widget()->actions()[0]).center());
  }
  EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST_F(MenuTest, IsFilledByItsPopupEventAndEmptyOnesStayShut) {
  menu->Popup(0, 0);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  menu->OnPopup = [&](TObject*) {
    menu->Items()->Clear();
    Add("fresh");
  };
  menu->Popup(0, 0);
  menu->Popup(0, 0);
  EXPECT_EQ(menu->Widget()->actions().size(), 1);
  menu->Close();
}

TEST_F(MenuTest, EntriesMoveAndGo) {
  TMenuItem* one = Add("one");
  TMenuItem* two = Add("two");
  menu->Items()->Insert(0, two);
  EXPECT_EQ(menu->Items()->Items(0), two);
  EXPECT_EQ(menu->Items()->Count(), 2);
  menu->Items()->Delete(0);
  EXPECT_EQ(two->Parent(), nullptr);
  delete one;
  EXPECT_EQ(menu->Items()->Count(), 0);
  Add("three");
  const int components = form->ComponentCount();
  menu->Items()->Clear();
  EXPECT_EQ(form->ComponentCount(), components - 1);
}

TEST_F(MenuTest, TheRightButtonOpensAControlsMenuAndAMenuButtonItsOwn) {
  Add("one");
  form->m_btnFirst->SetPopupMenu(menu);
  QContextMenuEvent event(QContextMenuEvent::Mouse, {2, 2}, form->m_btnFirst->ClientToScreen(2, 2));
  QApplication::sendEvent(form->m_btnFirst->Widget(), &event);
  EXPECT_EQ(QApplication::activePopupWidget(), menu->Widget());
  menu->Close();
  auto* button = NewComponent<TbsSkinMenuButton>(form, "m_mubtnDetail");
  button->SetParent(form);
  button->SetSkinPopupMenu(menu);
  button->Click();
  EXPECT_EQ(QApplication::activePopupWidget(), menu->Widget());
  EXPECT_EQ(menu->Widget()->pos(), button->ClientToScreen(0, button->Height()));
  menu->Close();
}
