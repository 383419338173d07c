// The business objects over a host and real lists and boxes.
#include <gtest/gtest.h>

#include <QComboBox>

#include "dialogs/busy_form.h"
#include "dialogs/error_msg.h"
#include "framework/business/query_common.h"
#include "tests/support/screen_host.h"
#include "toolkit/application.h"
#include "toolkit/combo_box.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

using fakehost::Library;

namespace {

struct BusinessObjects : testing::Test {
  void SetUp() override {
    form = CreateForm<TForm>(nullptr);
    list = NewComponent<TKVXListView>(form, "list");
    box = NewComponent<TKVXComboBox>(form, "box");
    for (TControl* control : std::initializer_list<TControl*>{list, box}) control->SetParent(form);
  }
  void TearDown() override { DestroyForm(form); }

  // "caption:id:width:tag" of each column; a hidden one has "-" for its width.
  std::string Columns() const {
    std::string text;
    for (int i = 0; i < list->Columns().Count(); ++i) {
      const TListColumn* column = list->Columns()[i];
      text += column->Caption() + ":" + list->ColumnIds()[static_cast<std::size_t>(i)] + ":" +
              (column->MaxWidth() == 1 ? "-" : std::to_string(column->Width())) + ":" +
              std::to_string(column->Tag()) + " ";
    }
    return text;
  }
  std::string Entries() const {
    std::string text;
    for (std::size_t i = 0; i < box->Items().Count(); ++i)
      text += box->Keys()[i] + "=" + box->Items()[i] + " ";
    return text;
  }

  ScreenHost host;
  CQueryCommon common;
  TForm* form = nullptr;
  TKVXListView* list = nullptr;
  TKVXComboBox* box = nullptr;
};

TEST_F(BusinessObjects, BuildColumnsFromTableAndLayout) {
  const ScreenHost::Table table = {{"A", "UI44008", "100", "L", "C"},
                                   {"B", "UI44344", "80", "R", "M"},
                                   {"C", "UI44005", "0", "C", "N"},
                                   {"D", "UI99999", "5", "?", "R"}};
  const struct {
    ScreenHost::Table table;
    ScreenHost::Table layout;
    std::string expected;
    std::string workingTable;
  } cases[] = {
      {table, {}, "UI44008:A:100:0 UI44344:B:80:2 UI44005:C:-:100 :D:-:5 ", "C:UI44005 A:UI44008 B:UI44344 "},
      {table,
       {{"B", "1", "x"}, {"GONE", "1", "x"}, {"D", "1", "x"}, {"B", "1", "x"}, {"C", "1", "x"}},
       "UI44344:B:80:2 :D:-:5 UI44008:A:100:0 UI44005:C:-:100 ",
       "C:UI44005 A:UI44008 B:UI44344 "},
      {{table[0], table[1], {"A", "UI44005", "60", "L", "C"}},
       {},
       "UI44008:A:100:0 UI44344:B:80:2 ",
       "A:UI44008 B:UI44344 "},
      {{}, {{"B", "1", "x"}}, "", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.expected);
    host.libraries.calls.clear();
    host.SetColumns("TList", c.table);
    host.SetLayout("TList", c.layout);
    common.InitListColumns(list, "TList");
    EXPECT_EQ(Columns(), c.expected);
    std::string stored;
    for (const fakehost::Call& call : host.Stored(58, "TList")) {
      for (const auto& [caption, section] : corvane::Ini(call.arguments.at(1))) {
        stored += section.getValue("COLID") + ":" + caption + " ";
      }
    }
    EXPECT_EQ(stored, c.workingTable);
  }
  EXPECT_EQ(common.FindColumnByCaption(list, "x"), -1);
  host.SetColumns("TList", table);
  host.SetLayout("TList", {});
  common.InitListColumns(list, "TList");
  EXPECT_EQ(common.FindColumnByCaption(list, "UI44344"), 2);
  const TAlignment alignments[] = {taLeftJustify, taRightJustify, taCenter, taLeftJustify};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(list->Columns()[i]->Alignment(), alignments[i]) << i;
}

TEST_F(BusinessObjects, KeepTheColumnsBuiltBeforeAFailure) {
  host.SetColumns("TList", {{"A", "UI44008", "100", "L", "C"}, {"B", "UI44344", "wide", "R", "M"}});
  host.SetErrorText("'wide' is not a valid integer value", "bad width");
  EXPECT_EQ(FailureOf([&] { common.InitListColumns(list, "TList"); }), "bad width");
  EXPECT_EQ(list->Columns().Count(), 2);
  EXPECT_EQ(host.Stored(58, "TList").size(), 0u);
}

// The flows of a business, open to the test.
struct Flows : CQueryCommon {
  std::string Text() {
    std::string text;
    for (const corvane::List* flows : {&m_flows, &m_flowsPrimary, &m_flowsOther}) {
      for (const corvane::Row& row : *flows) text += row.getValue("FLOWID") + " ";
      text += "| ";
    }
    return text;
  }
};

TEST_F(BusinessObjects, PartTheFlowsOfABusinessByTheirOperations) {
  host.SetList("CMLGBSN",
               ScreenHost::ListOf({{"BSNCODE", "FLOWID"}, {"B1", "F2"}, {"B2", "F3"}, {"B1", "F1"}}));
  host.SetList(
      "CMLGBSNOPR",
      ScreenHost::ListOf(
          {{"FLOWID", "PSTCLASS"}, {"F1", "01"}, {"F3", "01"}, {"F2", "02"}, {"F1", ""}, {"F2", "01"}}));
  Flows flows;
  for (int i = 0; i < 2; ++i) {
    flows.LoadBusinessFlows("B1");
    EXPECT_EQ(flows.Text(), "F2 F2 F1 F1 | F2 F1 | F2 F1 | ");
  }
}

TEST_F(BusinessObjects, ListEachAccountOnceBehindThePrompt) {
  host.SetList("CMLGBSNOPR",
               ScreenHost::ListOf({{"FLOWID", "PSTCLASS"}, {"F1", "01"}, {"F1", "02"}, {"F2", "01"}}));
  host.SetList("CMLGBSNACC", ScreenHost::ListOf({{"FLOWID", "ACCNO", "ACCNM"},
                                                 {"F1", "622", "Main"},
                                                 {"F9", "999", "Not ours"},
                                                 {"F1", "622", "Again"},
                                                 {"F1", "111", ""}}));
  common.LoadBusinessFlows("CB200310");
  common.LoadAccountCombo(box, true);
  EXPECT_EQ(Entries(), "-9999=UI54176 622=622-Main 111=111- ");
  EXPECT_EQ(box->ItemIndex(), 0);
  common.LoadAccountCombo(box, false);
  EXPECT_EQ(Entries(), "-9999=UI53241 622=622-Main 111=111- ");
  common.LoadBusinessFlows("CB000000");
  common.LoadAccountCombo(box, true);
  EXPECT_EQ(Entries(), "");
}

TEST_F(BusinessObjects, ShowManyAccountsInOneStep) {
  host.SetAccounts(1000);
  common.LoadBusinessFlows("CB200310");
  int steps = 0;
  const auto* model = static_cast<QComboBox*>(box->Widget())->model();
  QObject::connect(model, &QAbstractItemModel::rowsInserted, box, [&] { ++steps; });
  common.LoadAccountCombo(box, true);
  EXPECT_EQ(steps, 1);
  EXPECT_EQ(model->rowCount(), 1001);
  EXPECT_EQ(box->ItemIndex(), 0);
}

TEST_F(BusinessObjects, DecodeWhatTheDictionaryKnows) {
  host.SetTable("BUSINESSDICT", "D",
                ScreenHost::ListOf({{"TYPEKEY", "TYPE"}, {"1", "UI12016"}, {"1", "UI12017"}}));
  corvane::List rows = ScreenHost::ListOf({{"CODE"}, {"1"}, {"7"}, {""}});
  common.DecodeDictColumn(rows, "CODE", "D");
  common.DecodeDictColumn(rows, "OTHER", "D");
  EXPECT_EQ(rows[0].getValue("CODE") + rows[1].getValue("CODE") + rows[2].getValue("CODE"), "UI120167");
  EXPECT_FALSE(rows[0].hasField("OTHER"));
  host.SetTable("BUSINESSDICT", "E", ScreenHost::ListOf({{"TYPEKEY", "TYPE"}, {"", "UI12017"}}));
  common.DecodeDictColumn(rows, "OTHER", "E");
  EXPECT_EQ(rows[0].getValue("OTHER"), "UI12017");

  common.LoadDictCombo(box, "D");
  EXPECT_EQ(Entries(), "1=UI12017 ");  // of two rows of one code the box takes the later text
  EXPECT_EQ(box->ItemIndex(), 0);
  common.LoadDictCombo(box, "BILLTYPE");
  EXPECT_EQ(Entries(), "-9999=UI40115 AC01=UI40116 AC02=UI40117 ");
  host.libraries.SetAnswer(Library::kPublicInformation, 90, {"BUSINESSDICT", "GONE"},
                           fakehost::Refusal("no such"));
  EXPECT_THROW(common.LoadDictCombo(box, "GONE"), corvane::TIOException);
  EXPECT_EQ(box->Items().Count(), 0u);
  host.SetErrorText("no such", "no dictionary");
  EXPECT_EQ(FailureOf([&] { common.DecodeDictColumn(rows, "CODE", "GONE"); }), "no dictionary");
}

TEST_F(BusinessObjects, ReportAFailedExchangeAndEmptyTheAnswer) {
  corvane::CorvaneStream request;
  corvane::CorvaneStream answer;
  answer.addField(corvane::Field("OLD", "1"));
  host.RefuseExchange("ET90001\r\nET90002");
  host.SetErrorText("ET90001\r\nET90002", "refused");
  EXPECT_EQ(FailureOf([&] { EXPECT_FALSE(common.SendRequest("X", request, answer, form)); }), "refused");
  EXPECT_EQ(answer.getValue("OLD"), "");
  bool stillBusy = false;
  WhenShown<TFrmErrorMsg> look([&](TFrmErrorMsg& message) {
    stillBusy = ShownForm(TBarForm::staticMetaObject) != nullptr;
    message.Close();
  });
  common.SendRequest("X", request, answer, form);
  EXPECT_TRUE(stillBusy) << "the busy form goes after the report";
  EXPECT_EQ(ShownForm(TBarForm::staticMetaObject), nullptr);
  host.SetAnswerRows(ScreenHost::ListOf({{"A"}, {"1"}}));
  EXPECT_TRUE(common.SendRequest("X", request, answer, form));
  EXPECT_EQ(answer.getList("resultList").size(), 1u);
  EXPECT_EQ(request.getEncoding(), "GBK");
}

TEST_F(BusinessObjects, ReportAnExchangeWhoseBusyFormFails) {
  corvane::CorvaneStream request;
  corvane::CorvaneStream answer;
  answer.addField(corvane::Field("OLD", "1"));
  host.libraries.SetAnswer(Library::kPublicInformation, 24, {"ENVIRONMENT", "ENV.IMAGES"},
                           fakehost::Refusal("no images"));
  host.SetErrorText("no images", "no pictures");
  EXPECT_EQ(FailureOf([&] { EXPECT_FALSE(common.SendRequest("X", request, answer, form)); }), "no pictures");
  EXPECT_EQ(answer.getValue("OLD"), "");
  EXPECT_EQ(host.Requests("X").size(), 0u);
}

TEST_F(BusinessObjects, EndAnExchangeWithoutAMessageWhereTheFailureHasNoKey) {
  corvane::CorvaneStream request;
  corvane::CorvaneStream answer;
  const int forms = Screen->FormCount();
  host.libraries.SetAnswer(Library::kSafeCom, 5, {.text = {}, .throws = true});
  EXPECT_EQ(FailureOf([&] { EXPECT_FALSE(common.SendRequest("X", request, answer, form)); }), "nothing");
  EXPECT_EQ(Screen->FormCount(), forms);
}

TEST_F(BusinessObjects, ReportWhatTheHostRefusesAndGoOn) {
  corvane::Row head;
  corvane::List none;
  common.LoadBusinessFlows("CB200310");
  common.LoadAccountCombo(box, true);
  const std::string entries = Entries();
  constexpr auto kPub = Library::kPublicInformation;
  // Each refusal remains for the following lines.
  const struct {
    Library library;
    std::uint32_t ordinal;
    std::vector<std::string> arguments;  // empty: whatever it is asked
    std::function<void()> action;
  } cases[] = {
      {kPub,
       68,
       {"SYSCONFIG_DATA", "APPLICATION.BUSINESS.SET", "LISTVIEW.MAXRECORD"},
       [&] { EXPECT_FALSE(common.CheckRecordLimit(0)); }},
      {kPub, 90, {"FIELDDEF", "TList"}, [&] { common.InitListColumns(list, "TList"); }},
      {Library::kPrint, 3, {}, [&] { common.PrintRecords("TList", "", head, none); }},
      {Library::kExcel, 2, {}, [&] { common.ExportRecords("a.xls", head, none, none, 1); }},
      {Library::kExcel, 5, {}, [&] { common.ExportRecords("a.xls", head, none, none, 3); }},
      {kPub, 40, {"CMLGUSERINFO"}, [&] { EXPECT_EQ(common.GetOperatorNo(), ""); }},
      {kPub, 40, {"CMLGUSERINFO"}, [&] { common.ExportRecords("a.xml", head, none, none, 2); }},
      {Library::kTranslate, 4, {"UI53", "UI53241"}, [&] { common.LoadAccountCombo(box, false); }},
      {kPub, 40, {"CMLGBSNACC"}, [&] { common.LoadAccountCombo(box, true); }},
      {kPub, 40, {"CMLGBSNOPR"}, [&] { common.LoadBusinessFlows("CB200310"); }},
  };
  host.SetErrorText("ET90001", "refused");
  for (const auto& c : cases) {
    const auto refusal = fakehost::Refusal("ET90001");
    if (c.arguments.empty()) {
      host.libraries.SetAnswer(c.library, c.ordinal, refusal);
    } else {
      host.libraries.SetAnswer(c.library, c.ordinal, c.arguments, refusal);
    }
    EXPECT_EQ(FailureOf(c.action), "refused")
        << c.ordinal << " " << (c.arguments.empty() ? "" : c.arguments.back());
    EXPECT_EQ(Entries(), entries);
  }
}

TEST_F(BusinessObjects, JudgeTheTicksByTheLastAnswerAlone) {
  host.SetColumns("TList", {{"A", "UI44008", "100", "L", "C"}});
  common.InitListColumns(list, "TList");
  corvane::List rows = ScreenHost::ListOf({{"A"}, {"refused"}, {"not ticked"}});
  for (int i = 0; i < 2; ++i) common.FillListView(list, rows);
  ASSERT_EQ(list->Items().Count(), 2);
  list->Items()[0]->SetChecked(true);
  corvane::CorvaneStream answer;
  corvane::List refused = ScreenHost::ListOf({{"ID", "FLAG"}, {"0", "ET5"}});
  refused.setAttribute("name", "resultList");
  answer.addList(refused);
  common.ApplyResultList(answer, "resultList", list);
  common.RemoveCompletedItems(list);
  EXPECT_EQ(list->Items().Count(), 2);
  EXPECT_EQ(list->ItemIndex(), -1);
  // An answer that names nobody: all that is ticked was carried out.
  corvane::CorvaneStream accepted;
  common.ApplyResultList(accepted, "resultList", list);
  common.RemoveCompletedItems(list);
  ASSERT_EQ(list->Items().Count(), 1);
  EXPECT_EQ(list->Items()[0]->Caption(), "not ticked");
}

TEST_F(BusinessObjects, ExportByTypeAndName) {
  const struct {
    const char* file;
    std::uint8_t type;
    std::uint32_t ordinal;  // of the spreadsheet library; 0: not called
  } cases[] = {{"a.xls", 1, 2}, {"a.Txt", 1, 5}, {"a.xls", 3, 5}, {"a.xml", 2, 0}, {"a", 9, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.file + std::string(" of type ") + std::to_string(c.type));
    host.libraries.calls.clear();
    corvane::Row head;
    head["BEQRY"] = head["TYPENAME"] = "x";
    corvane::List columns;
    corvane::List rows;
    common.ExportRecords(c.file, head, columns, rows, c.type);
    for (const std::uint32_t ordinal : {2u, 5u}) {
      EXPECT_EQ(host.libraries.CallsOf(Library::kExcel, ordinal).size(), c.ordinal == ordinal ? 1u : 0u)
          << c.file;
    }
    EXPECT_EQ(head.getValue("USERNAME") + head.getValue("QUERYUSER") + head.getValue("CONDITION"),
              "OperatorUI50258UI50260");
    EXPECT_FALSE(head.hasField("BEQRY"));
    if (c.ordinal != 5) continue;
    const auto arguments = host.libraries.CallsOf(Library::kExcel, 5).at(0).arguments;
    EXPECT_EQ(arguments.at(0) + " " + arguments.at(4) + " " + arguments.at(5), c.file + std::string(" | 2"));
  }
  corvane::Row head;
  head["ACCGRP"] = "x";
  corvane::List none;
  host.libraries.SetAnswer(Library::kExcel, 2, fakehost::Refusal("ET90001"));
  WhenShown<TFrmErrorMsg> report([](TFrmErrorMsg& message) {
    EXPECT_EQ(message.Owner(), Application);
    message.Close();
  });
  common.ExportRecords("a.xls", head, none, none, 1);
  EXPECT_TRUE(report.Came());
  head["ACCGRP"] = "x";
  common.ExportRecords("a.xml", head, none, none, 2);
  EXPECT_EQ(head.getValue("USERNAME") + head.getValue("QUERYUSER"), "OperatorUI50258");
  EXPECT_FALSE(head.hasField("ACCGRP") || head.hasField("CONDITION"));
}

TEST_F(BusinessObjects, TurnCodesIntoTexts) {
  for (const char* key : {"UI52150", "UI52140", "UI52424"}) host.SetText(key, key);
  host.SetText("UI52879", "seven");
  corvane::List rows = ScreenHost::ListOf({{"STT", "AGREE"}, {"", "0"}, {"0", "8"}, {"7", ""}, {"16", "x"}});
  common.FormatStatus(rows, "UI52879");
  common.FormatAgree(rows);
  std::string texts;
  for (const corvane::Row& row : rows) texts += row.getValue("STT") + "/" + row.getValue("AGREE") + " ";
  EXPECT_EQ(texts, "UI52150/UI52424 UI52140/8 seven/ 16/x ");
}

TEST_F(BusinessObjects, AnswerSmallQuestions) {
  EXPECT_EQ(common.GetOperatorNo(), "007");
  EXPECT_EQ(common.GetServerDate(), "20261122");
  host.Configure("APPLICATION.BUSINESS.SET", "LISTVIEW.MAXRECORD", "100");
  EXPECT_TRUE(common.CheckRecordLimit(100));
  EXPECT_EQ(MessageOf([&] { EXPECT_FALSE(common.CheckRecordLimit(101)); }), "UI53329");
  EXPECT_TRUE(common.IsAlphanumeric("aZ09"));
  for (const std::string& text : {std::string(), std::string("a b"), Ansi("号"), std::string("a-")}) {
    EXPECT_FALSE(common.IsAlphanumeric(text)) << text;
  }
  auto* label = NewComponent<TLabel>(form, "label");
  label->SetCaption("long text");
  common.SetControlHint(label);
  EXPECT_EQ(label->Hint(), "long text");
  common.SetControlHint(list);
  common.SetControlHint(nullptr);
  EXPECT_FALSE(list->ShowHint());
}

}  // namespace
