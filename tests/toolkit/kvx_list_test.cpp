#include <QHeaderView>
#include <QMenu>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStyleOption>
#include <QTreeView>

#include "data/list.h"
#include "data/string_vector.h"
#include "tests/toolkit/kvx_fixture.h"
#include "toolkit/decimal_text.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/layout.h"
#include "toolkit/menu.h"
#include "toolkit/text.h"

namespace {

// Writes down the captions that a header paints.
class HeaderSpy : public QProxyStyle {
 public:
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (element == CE_Header && header != nullptr) captions << header->text;
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  mutable QStringList captions;
};

class KvxListTest : public KvxTest {
 protected:
  void SetUp() override {
    KvxTest::SetUp();
    list = Put<TKVXListView>("m_lvMain");
    view = form->Widget()->findChild<QTreeView*>("m_lvMain");
    ASSERT_NE(view, nullptr);
    list->SetCheckboxes(true);
    list->SetRowSelect(true);
    AddColumn("BILLNUM", 120, cfText);
    AddColumn("PAYAMT", 100, cfAmount);
    AddColumn("SECRET", 0, cfText);
    AddColumn("STATE", 80, cfRightText);
  }

  TListColumn* AddColumn(const char* id, int width, TColumnFormat format) {
    TListColumn* column = list->Columns().Add();
    list->ColumnIds().push_back(id);
    column->SetCaption(std::string("caption of ") + id);
    column->SetWidth(width);
    if (width == 0) column->SetMaxWidth(1);
    column->SetTag(format);
    return column;
  }

  static corvane::Row Bill(int number, const std::string& amount) {
    corvane::Row row;
    row["BILLNUM"] = "B" + std::to_string(number);
    row["PAYAMT"] = amount;
    row["SECRET"] = "hidden";
    row["STATE"] = Ansi("已存");
    row["NOCOLUMN"] = "kept";
    return row;
  }

  void Fill(int rows) {
    corvane::List bills;
    for (int i = 0; i < rows; ++i) bills.addRow(Bill(i, std::to_string(i) + ".25"));
    list->Add(bills, list->ColumnIds().toString("; ", false));
  }

  QString Cell(int row, int column) const { return view->model()->index(row, column).data().toString(); }
  QPoint Box(int row) const {
    return view->visualRect(view->model()->index(row, 0)).topLeft() +
           QPoint(10, view->sizeHintForRow(row) / 2);
  }
  QPoint Text(int row, int column) const {
    return view->visualRect(view->model()->index(row, column)).center();
  }
  std::string Rows() const {
    std::string rows;
    for (int i = 0; i < list->Items().Count(); ++i) rows += list->Items()[i]->Caption();
    return rows;
  }

  TKVXListView* list = nullptr;
  QTreeView* view = nullptr;
};

}  // namespace

TEST_F(KvxListTest, ShowsRecordsByTheColumnIds) {
  QSignalSpy resets(view->model(), &QAbstractItemModel::modelReset);
  Fill(3);
  EXPECT_EQ(resets.count(), 1);
  EXPECT_EQ(view->model()->columnCount(), 4);
  EXPECT_EQ(view->model()->headerData(1, Qt::Horizontal).toString(), "caption of PAYAMT");
  EXPECT_EQ(Cell(2, 0), "B2");
  EXPECT_EQ(Cell(2, 3), QString::fromUtf8("已存"));
  EXPECT_TRUE(view->isColumnHidden(2));
  EXPECT_FALSE(view->isColumnHidden(3));
  EXPECT_EQ(list->Items()[1]->Caption(), "B1");
  EXPECT_EQ(list->Items()[1]->SubItems(1), "hidden");
  EXPECT_EQ(list->Items()[1]->Data()->getValue("NOCOLUMN"), "kept");
}

TEST_F(KvxListTest, FormatsCellsAndLeavesTheRecord) {
  struct Case {
    TColumnFormat format;
    const char* text;
    const char* shown;
  };
  const Case cases[] = {
      {cfAmount, "1234567.5", "1,234,567.50"},
      {cfAmount, "-1000", "-1,000.00"},
      {cfAmount, "999", "999.00"},
      {cfAmount, "0.129", "0.12"},
      {cfAmount, "1,234.5", "1,234.50"},
      {cfAmount, "-.5", "-0.50"},
      {cfAmount, "", ""},
      {cfAmount, "n/a", "n/a"},
      {cfAmount, "1.2.3", "1.2.3"},
      {cfAmount, "1e5", "1e5"},
      {cfAmount, ",1", ",1"},
      {cfNumber, "1234567", "1,234,567"},
      {cfNumber, "-1234.567", "-1,234.567"},
      {cfNumber, "12 pieces", "12 pieces"},
      {cfRightText, "4.35%", "4.35%"},
      {cfText, "1234567.5", "1234567.5"},
      {cfInternal, "1234", "1234"},
  };
  Fill(1);
  for (const Case& row : cases) {
    SCOPED_TRACE(std::string(row.text) + " in format " + std::to_string(row.format));
    list->Columns()[1]->SetTag(row.format);
    list->Items()[0]->SetSubItems(0, row.text);
    EXPECT_EQ(Cell(0, 1), row.shown);
    EXPECT_EQ(list->PropertyOf(list->Items()[0])->getValue("PAYAMT"), row.text);
  }
}

TEST_F(KvxListTest, AlignsAndColours) {
  Fill(1);
  const auto alignment = [&](int column) {
    return view->model()->index(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
  };
  list->Columns()[1]->SetAlignment(taRightJustify);
  list->Columns()[0]->SetAlignment(taCenter);
  EXPECT_TRUE(alignment(1).testFlag(Qt::AlignRight));
  EXPECT_TRUE(alignment(0).testFlag(Qt::AlignHCenter));
  EXPECT_TRUE(alignment(3).testFlag(Qt::AlignRight))
      << "a rate is at the right edge whatever the column says";
  const QModelIndex cell = view->model()->index(0, 0);
  EXPECT_FALSE(cell.data(Qt::ForegroundRole).isValid());
  (*list->PropertyOf(list->Items()[0]))["Color"] = "255";
  EXPECT_EQ(cell.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(255, 0, 0));
}

TEST_F(KvxListTest, TheUserTicksByMouseAndSpace) {
  Fill(3);
  std::string checked;
  list->OnItemCheck = [&](TObject*, TListItem* item) {
    checked += item->Caption() + (item->Checked() ? "+" : "-");
  };
  bool upSawTick = false;
  list->OnMouseUp = [&](TObject*, TMouseButton, TShiftState, int x, int y) {
    TListItem* item = list->GetItemAt(x, y);
    upSawTick = item != nullptr && item->Checked();
  };
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, Box(1));
  EXPECT_EQ(checked, "B1+");
  EXPECT_TRUE(upSawTick);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, Text(1, 1));
  EXPECT_EQ(checked, "B1+") << "a click beside the box ticks nothing";
  QTest::keyClick(view, Qt::Key_Space);
  EXPECT_EQ(checked, "B1+B1-");
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, Box(2));
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, Box(2));
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, Box(2));
  EXPECT_EQ(checked, "B1+B1-B2+B2-") << "two quick clicks on the box";
  list->Items()[0]->SetChecked(true);
  list->CheckAll();
  EXPECT_EQ(list->CheckedCount(), 3);
  list->UnCheckAll();
  EXPECT_EQ(list->CheckedCount(), 0);
  EXPECT_EQ(checked, "B1+B1-B2+B2-");
}

TEST_F(KvxListTest, ATickShowsInTheFirstVisibleColumnToo) {
  Fill(1);
  list->Columns()[0]->SetMaxWidth(1);
  EXPECT_TRUE(view->model()->index(0, 0).data(Qt::CheckStateRole).isValid());
  EXPECT_TRUE(view->model()->index(0, 1).data(Qt::CheckStateRole).isValid());
  EXPECT_FALSE(view->model()->index(0, 3).data(Qt::CheckStateRole).isValid());
  list->SetCheckboxes(false);
  EXPECT_FALSE(view->model()->index(0, 0).data(Qt::CheckStateRole).isValid());
}

TEST_F(KvxListTest, ReportsTheMouseAndTheKeys) {
  Fill(2);
  std::string log;
  list->OnClick = [&](TObject*) { log += "click "; };
  list->OnDblClick = [&](TObject*) { log += "double "; };
  list->OnMouseDown = [&](TObject*, TMouseButton button, TShiftState, int x, int y) {
    TListItem* item = list->GetItemAt(x, y);
    log +=
        std::string(button == mbRight ? "right" : "down") + (item == nullptr ? "- " : item->Caption() + " ");
  };
  list->OnKeyPress = [&](TObject*, char& key) { log += key; };
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, Text(0, 1));
  QTest::mouseClick(view->viewport(), Qt::RightButton, {}, Text(1, 1));
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, Text(1, 1));
  QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, Text(1, 1));
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(5, view->viewport()->height() - 2));
  QTest::keyClick(view, Qt::Key_Space);
  EXPECT_EQ(log, "downB0 click rightB1 double downB1 down- click  ");
}

TEST_F(KvxListTest, ReportsWhatIsSelected) {
  Fill(3);
  std::string log;
  list->OnSelectItem = [&](TObject*, TListItem* item, bool selected) {
    log += item->Caption() + (selected ? "+ " : "- ");
  };
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, Text(1, 0));
  list->SetItemIndex(2);
  EXPECT_EQ(list->GetItemIndex(), 2);
  EXPECT_TRUE(list->Items()[2]->Selected());
  EXPECT_TRUE(list->Items()[2]->Focused());
  list->SetItemIndex(-1);
  EXPECT_EQ(list->Selected(), nullptr);
  list->Items()[0]->SetState(2, true);
  EXPECT_EQ(list->ItemFocused(), list->Items()[0]);
  EXPECT_EQ(list->Selected(), nullptr);
  list->SetItemIndex(0);
  list->Clear();
  EXPECT_EQ(log, "B1+ B1- B2+ B2- B0+ B0- ");
  EXPECT_EQ(list->ItemIndex(), -1);
}

TEST_F(KvxListTest, HidesTheSelectionWithoutTheFocusWhereAsked) {
  Fill(3);
  view->clearFocus();
  list->SetHideSelection(true);
  const QImage bare = view->grab().toImage();
  list->SetItemIndex(1);
  EXPECT_EQ(view->grab().toImage(), bare);
  list->SetHideSelection(false);
  EXPECT_NE(view->grab().toImage(), bare);
}

TEST_F(KvxListTest, DeletingKeepsTheOtherHandles) {
  Fill(6);
  TListItem* last = list->Items()[5];
  TListItem* third = list->Items()[2];
  list->SetItemIndex(2);
  list->DelItem(0);
  EXPECT_EQ(Rows(), "B1B2B3B4B5");
  EXPECT_EQ(third->Index(), 1);
  EXPECT_EQ(list->Selected(), third);
  int reports = 0;
  list->OnSelectItem = [&](TObject*, TListItem*, bool) { ++reports; };
  QSignalSpy resets(view->model(), &QAbstractItemModel::modelReset);
  list->DelItems({0, 3, 9});
  EXPECT_EQ(Rows(), "B2B3B5");
  EXPECT_EQ(resets.count(), 1);
  EXPECT_EQ(list->Selected(), third);
  EXPECT_EQ(last->Index(), 2);
  EXPECT_EQ(reports, 0);
  list->DelItem(0);
  EXPECT_EQ(list->Selected(), nullptr);
  EXPECT_EQ(reports, 1);
  EXPECT_THROW(list->DelItem(2), std::out_of_range);
}

TEST_F(KvxListTest, GivesTheRecordsBack) {
  Fill(3);
  list->Items()[0]->SetChecked(true);
  list->Items()[2]->SetChecked(true);
  (*list->PropertyOf(list->Items()[2]))["Reason"] = "ET1";
  corvane::List rows;
  list->GetDataVector(rows, dvChecked);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1].getValue("Reason"), "ET1");
  EXPECT_TRUE(rows[0].hasField("Reason")) << "rows of a list have equal columns";
  EXPECT_EQ(rows[0].getValue("NOCOLUMN"), "kept");
  EXPECT_FALSE(list->PropertyOf(list->Items()[0])->hasField("Reason"));
  corvane::Property record;
  EXPECT_TRUE(list->Get(record, list->ColumnIds(), 1));
  record["BILLNUM"] = "changed";
  list->Modify(record, list->ColumnIds(), list->Items()[1]);
  EXPECT_EQ(Cell(1, 0), "changed");
  EXPECT_FALSE(list->Get(record, list->ColumnIds(), 3));
  EXPECT_EQ(record.size(), 0U);
  EXPECT_EQ(list->PropertyOf(nullptr), nullptr);
}

TEST_F(KvxListTest, SumsAreExact) {
  corvane::List rows;
  for (const char* amount :
       {"0.1", "0.2", "9999999999999.99", "9999999999999.99", "", "none", "-0.05", "1.999"}) {
    rows.addRow(Bill(0, amount));
  }
  list->Add(rows, "");
  EXPECT_EQ(list->GetTotalMoney(2, false), "20000000000002.22");
  EXPECT_EQ(list->GetTotalMoney(2, true), "0.00");
  list->Items()[0]->SetChecked(true);
  list->Items()[6]->SetChecked(true);
  EXPECT_EQ(list->GetTotalMoney(2, true), "0.05");
  list->Items()[0]->SetChecked(false);
  EXPECT_EQ(list->GetTotalMoney(2, true), "-0.05");
  EXPECT_EQ(list->GetTotalMoney(0, false), "");
  EXPECT_EQ(list->GetTotalMoney(5, false), "");
}

TEST_F(KvxListTest, CountsTheTickedRowsByKind) {
  const auto ticked = [&] {
    return std::to_string(list->CheckedCount()) + " ticked, " + std::to_string(list->CheckedCount(0)) +
           " early, " + std::to_string(list->CheckedCount(7)) + " late";
  };
  Fill(5);
  list->Items()[0]->SetChecked(true);
  EXPECT_EQ(ticked(), "1 ticked, 0 early, 0 late");
  // Kind 0, early: the first three rows; kind 7, late: the third one and those after it.
  int asked = 0;
  list->SetKinds([&](const corvane::Property& record) {
    ++asked;
    const char number = record.getValue("BILLNUM").at(1);
    return static_cast<std::uint8_t>((number <= '2' ? 0x01 : 0) | (number >= '2' ? 0x80 : 0));
  });
  EXPECT_EQ(ticked(), "1 ticked, 1 early, 0 late");
  EXPECT_EQ(asked, 1);
  list->CheckAll();
  EXPECT_EQ(ticked(), "5 ticked, 3 early, 3 late");
  list->CheckAll();
  list->UnCheckAll();
  EXPECT_EQ(ticked(), "0 ticked, 0 early, 0 late");
  list->CheckAll();
  EXPECT_EQ(asked, 5);
  list->Modify(corvane::Property(Bill(4, "1")), list->ColumnIds(), list->Items()[0]);
  EXPECT_EQ(ticked(), "5 ticked, 2 early, 4 late");
  list->Items()[1]->SetCaption("B9");
  EXPECT_EQ(ticked(), "5 ticked, 1 early, 5 late");
  (*list->PropertyOf(list->Items()[4]))["BILLNUM"] = "B0";
  list->RefreshItem(list->Items()[4]);
  EXPECT_EQ(ticked(), "5 ticked, 2 early, 4 late");
  list->DelItem(0);
  EXPECT_EQ(ticked(), "4 ticked, 2 early, 3 late");
  list->DelItems({0, 3});
  EXPECT_EQ(ticked(), "2 ticked, 1 early, 2 late");
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, Box(0));
  EXPECT_EQ(ticked(), "1 ticked, 0 early, 1 late");
  list->Clear();
  EXPECT_EQ(ticked(), "0 ticked, 0 early, 0 late");
  Fill(1);
  EXPECT_EQ(ticked(), "0 ticked, 0 early, 0 late");
}

TEST_F(KvxListTest, TheUserWidensAndMovesColumns) {
  Fill(1);
  view->header()->resizeSection(0, 200);
  EXPECT_EQ(list->Columns()[0]->Width(), 200);
  list->Columns()[1]->SetMaxWidth(150);
  view->header()->resizeSection(1, 400);
  EXPECT_EQ(list->Columns()[1]->Width(), 150);
  EXPECT_EQ(view->columnWidth(1), 150);
  list->SetFullDrag(false);
  EXPECT_TRUE(view->header()->sectionsMovable());
  const int id = list->Columns()[0]->ID();
  view->header()->moveSection(0, 3);
  EXPECT_EQ(list->Columns().FindItemID(id)->Index(), 3);
  EXPECT_EQ(list->ColumnIds(), (corvane::StringVector{"PAYAMT", "SECRET", "STATE", "BILLNUM"}));
  EXPECT_EQ(Cell(0, 3), "B0");
  EXPECT_EQ(view->header()->visualIndex(3), 3);
  EXPECT_TRUE(view->isColumnHidden(1));
  EXPECT_EQ(view->columnWidth(3), 200);
  EXPECT_EQ(view->model()->headerData(0, Qt::Horizontal).toString(), "caption of PAYAMT");
}

TEST_F(KvxListTest, TheHeaderHasTheListsFontUnderASkinToo) {
  Fill(1);
  const auto height = [this] { return view->header()->sizeHint().height(); };
  const int before = height();
  form->Widget()->setStyleSheet("QTreeView { border: 0; } QHeaderView::section { font-weight: bold; }");
  list->Font()->SetSize(30);
  EXPECT_EQ(view->header()->font().pointSize(), 30);
  EXPECT_GT(height(), before + 10);
}

TEST_F(KvxListTest, ACaptionThatIsCutEndsInDots) {
  Fill(1);
  HeaderSpy spy;
  view->header()->setStyle(&spy);
  for (const int width : {60, 600}) {
    list->Columns()[0]->SetWidth(width);
    spy.captions.clear();
    view->header()->grab();
    const QString shown = spy.captions.value(0);
    EXPECT_EQ(shown.endsWith(QChar(0x2026)), width == 60) << shown.toStdString();
    EXPECT_EQ(shown == "caption of BILLNUM", width == 600) << shown.toStdString();
  }
  view->header()->setStyle(nullptr);
}

TEST_F(KvxListTest, ALowFormLeavesRoomForRows) {
  Fill(3);
  TColumnLayout(form).Add(list, 1);
  for (const int size : {9, 24}) {
    list->Font()->SetSize(size);
    form->SetHeight(60);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    EXPECT_TRUE(view->viewport()->rect().contains(view->visualRect(view->model()->index(2, 0)))) << size;
  }
}

TEST_F(KvxListTest, TheRightButtonOpensThePopupMenu) {
  Fill(2);
  TPopupMenu menu(form);
  menu.SetName("m_pmuListview");
  menu.Items()->AddLine()->SetCaption("entry");
  list->SetPopupMenu(&menu);
  QContextMenuEvent event(QContextMenuEvent::Mouse, Text(1, 0), view->viewport()->mapToGlobal(Text(1, 0)));
  QCoreApplication::sendEvent(view->viewport(), &event);
  ASSERT_NE(menu.Widget(), nullptr);
  EXPECT_TRUE(menu.Widget()->isVisible());
  menu.Close();
  EXPECT_FALSE(menu.Widget()->isVisible());
  QTest::keyClick(view, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(menu.Widget()->isVisible());
  menu.Close();
}

TEST_F(KvxListTest, AHiddenColumnComesBackWithTheWidthItIsGiven) {
  TListColumn* column = list->Columns()[0];
  column->SetMinWidth(0);
  column->SetMaxWidth(1);
  EXPECT_EQ(column->Width(), 1);
  column->SetWidth(0);
  EXPECT_EQ(column->Width(), 0);
  EXPECT_TRUE(view->isColumnHidden(0));
  column->SetMaxWidth(0);
  column->SetWidth(90);
  EXPECT_FALSE(view->isColumnHidden(0));
  EXPECT_EQ(view->columnWidth(0), 90);
  column->SetMinWidth(100);
  EXPECT_EQ(column->Width(), 100);
}

TEST_F(KvxListTest, PlainRowsHoldTexts) {
  auto* plain = Put<TListView>("m_ltvInfo");
  plain->Columns().Add();
  plain->Columns().Add();
  TListItem* second = plain->Items().Add();
  second->SetCaption("second");
  second->AddSubItem("2");
  TListItem* first = plain->Items().Insert(0);
  first->SetCaption("first");
  EXPECT_EQ(second->Index(), 1);
  EXPECT_EQ(second->SubItems(0), "2");
  EXPECT_EQ(first->SubItems(0), "");
  EXPECT_EQ(first->SubItemCount(), 0);
  EXPECT_EQ(first->Data(), nullptr);
  first->Delete();
  EXPECT_EQ(plain->Items().Count(), 1);
  EXPECT_THROW(plain->Items()[1], std::out_of_range);
  EXPECT_THROW(plain->Items().Insert(3), std::out_of_range);
}

TEST_F(KvxListTest, TheSumRowShowsAmounts) {
  EXPECT_FALSE(list->ShowSumRow());
  const int height = view->viewport()->height();
  list->SetShowSumRow(true);
  EXPECT_LT(view->viewport()->height(), height);
  Fill(3);
  view->grab();
  list->SetShowSumRow(false);
  EXPECT_EQ(view->viewport()->height(), height);
}

TEST_F(KvxListTest, AHundredThousandRowsAreTickedInOneChange) {
  Fill(100000);
  QSignalSpy changes(view->model(), &QAbstractItemModel::dataChanged);
  list->CheckAll();
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(list->GetTotalMoney(2, true), "4999975000.00");
  std::vector<int> odd;
  for (int i = 1; i < 100000; i += 2) odd.push_back(i);
  list->DelItems(odd);
  view->grab();
  EXPECT_EQ(list->Items().Count(), 50000);
  EXPECT_EQ(list->Items()[49999]->Caption(), "B99998");
}
