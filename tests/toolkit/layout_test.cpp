#include "toolkit/layout.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "tests/toolkit/test_form.h"
#include "toolkit/application.h"
#include "toolkit/combo_box.h"
#include "toolkit/edits.h"

namespace {

class LayoutTest : public testing::Test {
 protected:
  void SetUp() override {
    form = new TForm(Application);
    box = NewComponent<TPanel>(form, "m_box");
    TColumnLayout page(form);
    page.Add(box, 1);
  }
  TPanel* Part(const char* name) { return NewComponent<TPanel>(form, name); }
  void Show(int width, int height) {
    form->SetWidth(width);
    form->SetHeight(height);
    form->Show();
    QApplication::processEvents();
  }
  TForm* form = nullptr;
  TPanel* box = nullptr;
};

}  // namespace

TEST_F(LayoutTest, ARowSharesWhatIsLeftOverByTheStretches) {
  TPanel* fixed = Part("fixed");
  TPanel* one = Part("one");
  TPanel* three = Part("three");
  fixed->SetWidth(40);
  TRowLayout row(box);
  row.SetMargins(10, 5, 10, 5);
  row.SetSpacing(10);
  row.Add(fixed);
  row.Add(one, 1);
  row.Add(three, 3);
  Show(400, 100);
  EXPECT_EQ(fixed->Widget()->geometry(), QRect(10, 5, 40, 90));
  EXPECT_EQ(one->Widget()->geometry(), QRect(60, 5, 80, 90));
  EXPECT_EQ(three->Widget()->geometry(), QRect(150, 5, 240, 90));
  EXPECT_EQ(one->Parent(), box);
}

TEST_F(LayoutTest, LayoutsNestAndHiddenControlsTakeNoRoom) {
  TPanel* parts[4] = {Part("a"), Part("b"), Part("c"), Part("d")};
  TColumnLayout column(box);
  column.SetSpacing(0);
  TRowLayout row = column.AddRow(1);
  row.SetSpacing(0);
  row.Add(parts[0], 1);
  row.Add(parts[1], 1);
  TGridLayout grid = column.AddGrid(1);
  grid.SetSpacing(0);
  grid.Put(parts[2], 0, 0);
  grid.Put(parts[3], 0, 1);
  grid.SetColumnStretch(0, 1);
  grid.SetColumnStretch(1, 3);
  grid.SetRowStretch(0, 1);
  Show(200, 100);
  EXPECT_EQ(parts[1]->Widget()->geometry(), QRect(100, 0, 100, 50));
  EXPECT_EQ(parts[3]->Widget()->geometry(), QRect(50, 50, 150, 50));
  parts[0]->SetVisible(false);
  QApplication::processEvents();
  EXPECT_EQ(parts[1]->Widget()->geometry(), QRect(0, 0, 200, 50));
}

TEST_F(LayoutTest, AFieldFollowsItsLabelAndGrowsWithTheFont) {
  TLabel* label = NewComponent<TLabel>(form, "m_lbNo");
  TLabel* star = NewComponent<TLabel>(form, "m_lbStar");
  auto* edit = NewComponent<TEdit>(form, "m_edNo");
  auto* below = NewComponent<TEdit>(form, "m_edBelow");
  label->SetCaption("Number");
  star->SetCaption("*");
  TGridLayout grid(box);
  grid.PutField(0, 0, label, edit, star);
  grid.Put(below, 1, 1, 1, 2);
  grid.SetColumnStretch(1, 1);
  Show(300, 120);
  const QRect before = edit->Widget()->geometry();
  EXPECT_EQ(label->Alignment(), taRightJustify);
  EXPECT_LT(label->Widget()->geometry().right(), before.left());
  EXPECT_LT(before.right(), star->Widget()->x());
  EXPECT_EQ(below->Widget()->geometry().right(), star->Widget()->geometry().right());
  for (TControl* control : {static_cast<TControl*>(label), static_cast<TControl*>(edit)})
    control->Font()->SetSize(24);
  QApplication::processEvents();
  EXPECT_GT(edit->Height(), before.height());
  EXPECT_GT(label->Width(), label->Widget()->fontMetrics().horizontalAdvance("Numbe"));
}

TEST_F(LayoutTest, ABoxGrowsAndShrinksWithTheFont) {
  auto* combo = NewComponent<TKVXComboBox>(form, "m_cbx");
  TColumnLayout(box).Add(combo);
  for (const int size : {9, 24, 9}) {
    combo->Font()->SetSize(size);
    EXPECT_EQ(combo->Widget()->minimumSizeHint(), combo->Widget()->sizeHint()) << size;
  }
}

TEST_F(LayoutTest, ANewLayoutReplacesTheOldOne) {
  TPanel* part = Part("part");
  {
    TRowLayout row(box);
    row.Add(part);
  }
  TColumnLayout column(box);
  column.AddStretch();
  column.Add(part);
  part->SetHeight(30);
  Show(200, 100);
  EXPECT_EQ(part->Widget()->geometry(), QRect(0, 70, 200, 30));
  EXPECT_EQ(box->ControlCount(), 1);
}
