#include "dialogs/statistics.h"

#include <gtest/gtest.h>

#include "dialogs/com_msg.h"
#include "dialogs/statistics_form.h"
#include "tests/support/form_host.h"
#include "toolkit/application.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

using fakehost::Library;

class TSumForm : public TForm {
  Q_OBJECT

 public:
  using TForm::TForm;
};

namespace {

using Cells = std::vector<std::vector<std::string>>;
using Fields = std::vector<std::pair<const char*, std::string>>;

corvane::Row RowOf(const Fields& fields) {
  corvane::Row row;
  for (const auto& [name, value] : fields) row[name] = value;
  return row;
}

Cells CellsOf(TListView* table) {
  Cells cells;
  for (int i = 0; i < table->Items().Count(); ++i) {
    const TListItem* item = table->Items().Item(i);
    cells.push_back({item->Caption()});
    for (int j = 0; j < item->SubItemCount(); ++j) cells.back().push_back(item->SubItems(j));
  }
  return cells;
}

struct Statistics : testing::Test {
  Statistics() {
    host.SetText("UI12576", "币种");
    host.SetText("UI42325", "人民币");
    host.SetText("UI40118", "Amount");
    host.SetText("UI12581", "no sums");
    corvane::List table;
    table.addRow(RowOf({{"COLID", "AMT"}, {"DISPLAY", "UI40118"}, {"WIDTH", "150"}}));
    table.addRow(RowOf({{"COLID", "AMT"}, {"DISPLAY", "UI09999"}, {"WIDTH", "1"}}));
    host.SetTable("FIELDDEF", "TSumForm", table);
    owner = CreateForm<TSumForm>(Application);
    list = NewComponent<TKVXListView>(owner, "m_lvMain");
    list->SetParent(owner);
    list->SetCheckboxes(true);
  }

  // Adds records one list at a time, since the rows of one list have equal columns.
  void Add(const Fields& fields, bool checked = false) {
    corvane::List rows;
    rows.addRow(RowOf(fields));
    list->Add(rows, "CRYTYPE; AMT");
    list->Items().Item(list->Items().Count() - 1)->SetChecked(checked);
  }
  TFormPointer<TfrmStatistics> Make() {
    return TFormPointer<TfrmStatistics>(CreateForm<TfrmStatistics>(owner));
  }

  FormHost host;
  TSumForm* owner = nullptr;
  TKVXListView* list = nullptr;
};

TEST_F(Statistics, SumsByCurrencyOnceForAllAndOnceForTheTicked) {
  Add({{"CRYTYPE", "USD"}, {"AMT", "1000000.10"}, {"FEE", "1.005"}}, true);
  Add({{"CRYTYPE", "USD"}, {"AMT", "234567.20"}, {"FEE", ""}});
  Add({{"CRYTYPE", ""}, {"AMT", "-5"}, {"FEE", "0"}}, true);
  Add({{"AMT", "7.5"}, {"FEE", "2"}});
  Add({{"CRYTYPE", "EUR"}}, true);
  for (int i = 0; i < 2; ++i) Add({{"CRYTYPE", "JPY"}, {"AMT", "90000000000000.01"}});
  const auto form = Make();
  ASSERT_TRUE(form->Prepare(owner, list, {"AMT", "FEE"}, "sums"));
  EXPECT_EQ(form->Caption(), "sums");
  EXPECT_EQ(CellsOf(form->m_ltvInfo), (Cells{{"", "1", "-5.00", "0.00"},
                                             {"EUR", "1", "0.00", "0.00"},
                                             {"JPY", "2", "180,000,000,000,000.02", "0.00"},
                                             {"USD", "2", "1,234,567.30", "1.00"},
                                             {Ansi("人民币"), "1", "7.50", "2.00"}}));
  EXPECT_EQ(CellsOf(form->m_ltvSelected), (Cells{{"", "1", "-5.00", "0.00"},
                                                 {"EUR", "1", "0.00", "0.00"},
                                                 {"USD", "1", "1,000,000.10", "1.00"}}));
}

TEST_F(Statistics, AskOnceForTheCurrencyOfAllRecordsThatNameNone) {
  for (int i = 0; i < 3; ++i) Add({{"AMT", "0.50"}}, true);
  const auto form = Make();
  host.libraries.calls.clear();
  ASSERT_TRUE(form->Prepare(owner, list, {"AMT"}, "sums"));
  EXPECT_EQ(CellsOf(form->m_ltvInfo), (Cells{{Ansi("人民币"), "3", "1.50"}}));
  int asked = 0;
  for (const fakehost::Call& call : host.libraries.CallsOf(Library::kTranslate, 4)) {
    for (const std::string& argument : call.arguments) asked += argument == "UI42325" ? 1 : 0;
  }
  EXPECT_EQ(asked, 1);
}

TEST_F(Statistics, AskForNoCurrencyThatNoRecordNeeds) {
  host.libraries.SetAnswer(Library::kTranslate, 4, {"UI42", "UI42325"}, fakehost::Refusal("gone"));
  Add({{"CRYTYPE", "USD"}, {"AMT", "1"}});
  const auto form = Make();
  ASSERT_TRUE(form->Prepare(owner, list, {"AMT"}, "sums"));
  EXPECT_EQ(CellsOf(form->m_ltvInfo), (Cells{{"USD", "1", "1.00"}}));
}

TEST_F(Statistics, ColumnsTakeCaptionAndWidthFromTheColumnTable) {
  const auto form = Make();
  ASSERT_TRUE(form->Prepare(owner, list, {"NEW", "AMT", "OTHER"}, ""));
  const struct {
    std::string caption;
    TAlignment alignment;
    int width;
  } columns[] = {{Ansi("币种"), taLeftJustify, 120},
                 {"", taCenter, 120},
                 {"", taRightJustify, 200},
                 {"Amount", taRightJustify, 150},
                 {"Amount", taRightJustify, 150}};
  for (TListView* table : {form->m_ltvInfo, form->m_ltvSelected}) {
    ASSERT_EQ(table->Columns().Count(), 5);
    EXPECT_EQ(table->Items().Count(), 0);
    for (int i = 0; i < 5; ++i) {
      const TListColumn* column = table->Columns().Items(i);
      EXPECT_EQ(column->Caption(), columns[i].caption) << i;
      EXPECT_EQ(column->Alignment(), columns[i].alignment) << i;
      EXPECT_EQ(column->Width(), columns[i].width) << i;
    }
  }
}

TEST_F(Statistics, ARecordThatCannotBeSummedEndsInOneMessage) {
  const struct {
    const char* name;
    Fields record;
  } cases[] = {{"refused by the server", {{"CRYTYPE", "USD"}, {"AMT", "1"}, {"Color", "255"}}},
               {"no number", {{"CRYTYPE", "USD"}, {"AMT", "one"}}},
               {"thousands separator", {{"CRYTYPE", "USD"}, {"AMT", "1,000.00"}}}};
  for (const auto& row : cases) {
    list->Clear();
    Add({{"CRYTYPE", "USD"}, {"AMT", "1"}});
    Add(row.record);
    const int forms = Screen->FormCount();
    WhenShown<TFrmComMsg> step([&](TFrmComMsg& message) {
      EXPECT_EQ(message.m_lblInfo->Caption(), "no sums") << row.name;
      message.m_btnOk->Click();
    });
    ShowStatistics(owner, list, "sums", {"AMT"});
    EXPECT_TRUE(step.Came()) << row.name;
    EXPECT_EQ(Screen->FormCount(), forms) << row.name;
  }
  list->Clear();
  Add({{"CRYTYPE", "USD"}, {"AMT", "1"}, {"Color", "254"}});
  WhenShown<TfrmStatistics> step([](TfrmStatistics& form) { form.m_btnOk->Click(); });
  ShowStatistics(owner, list, "sums", {"AMT"});
  EXPECT_TRUE(step.Came());
}

}  // namespace

#include "statistics_test.moc"
