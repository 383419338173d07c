#include "dialogs/audit_foot.h"

#include <gtest/gtest.h>

#include "dialogs/audit_foot_form.h"
#include "dialogs/memo_break.h"
#include "dialogs/view_bsn_flow.h"
#include "tests/support/screen_host.h"
#include "toolkit/application.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

using fakehost::Library;

namespace {

using Table = ScreenHost::Table;

std::string Bytes(std::size_t count, const std::string& rest = "") {
  return std::string(count, 'a') + rest;
}

TEST(MemoBreak, PutsABlankBeforeThe79thByteUnlessADoubleByteCharacterBegins) {
  const std::string bank = Ansi("银");
  const struct {
    const char* name;
    std::string text, broken;
  } cases[] = {{"empty", "", ""},
               {"78 bytes", Bytes(78), Bytes(78)},
               {"79 bytes", Bytes(79), Bytes(78) + " a"},
               {"157 bytes", Bytes(157), Bytes(78) + " " + Bytes(78) + " a"},
               {"a blank at 78", Bytes(77, " bc"), Bytes(77, " bc")},
               {"a blank at 79", Bytes(78, " bc"), Bytes(78, " bc")},
               {"a blank at 79, then 79 more", Bytes(78, " ") + Bytes(79), Bytes(78, " ") + Bytes(78) + " a"},
               {"a character at 78", Bytes(77, bank) + Bytes(100), Bytes(77, bank) + Bytes(100)},
               {"a character at 79", Bytes(78, bank) + Bytes(100), Bytes(78, bank) + Bytes(100)},
               {"a character in the second line", Bytes(155, bank) + Bytes(9),
                Bytes(78) + " " + Bytes(77, bank) + Bytes(9)}};
  for (const auto& row : cases) EXPECT_EQ(norvik::BreakableMemo(row.text), row.broken) << row.name;
}

// A node and what is below it: text=key(children).
std::string TreeOf(TKVXTreeView* tree, TTreeNode* node) {
  std::string text = node->Text() + "=" + tree->AllocateDataNode(node)->Data().getValue("Key");
  if (node->Count() == 0) return text;
  std::string below;
  for (int i = 0; i < node->Count(); ++i) below += (i > 0 ? " " : "") + TreeOf(tree, node->Items(i));
  return text + "(" + below + ")";
}

corvane::List Step(const char* name, const char* stepName, const Table& operators) {
  Table lines = {{"OPRNO", "OPRNM", "CSTNMCN"}};
  lines.insert(lines.end(), operators.begin(), operators.end());
  corvane::List step = ScreenHost::ListOf(lines);
  step.setAttribute("name", name);
  step.setAttribute("PSTNM", stepName);
  return step;
}

corvane::CorvaneStream Flow(const char* total, std::vector<corvane::List> steps) {
  corvane::CorvaneStream flow;
  flow.addField(corvane::Field("BSNNM", "Pledge"));
  flow.addField(corvane::Field("AUDITTOTAL", total));
  for (corvane::List& step : steps) flow.addList(step);
  return flow;
}

const corvane::List& Batch() {
  static const corvane::List kBatch = Step("PSTLEVEL0", "Entry", {{"1", "Li", "Head"}});
  return kBatch;
}

struct AuditFoot : testing::Test {
  AuditFoot() {
    host.SetColumns("TfrmEBillAuditFoot", {{"OPRNM", "UI1", "100", "L", "C"},
                                           {"AMT", "UI2", "90", "R", "M"},
                                           {"NO", "UI3", "80", "C", "N"},
                                           {"AGREE", "UI4", "0", "R", "R"},
                                           {"DATA", "UI99999", "5", "L", "X"},
                                           {"NOTE", "UI5", "70", "L", "R"}});
    for (const char* key : {"UI1", "UI2", "UI3", "UI4", "UI5", "UI42801"}) host.SetText(key, key);
    host.SetText("UI42802", "yuan");
  }
  corvane::Row Record(const char* flow) const {
    return ScreenHost::ListOf({{"BSNName", "OPRNM", "SMTDATE", "SMTTIME", "ACCPACC", "ACCPNAM", "PYEEACC",
                                "PYEENAM", "PAYAMT", "CRYTYPE", "INMEMO", "FLOWID"},
                               {"Pledge", "Li", "2026-11-22", "10:20", "A1", "Payer", "A2", "Payee", "10.00",
                                "CNY", Bytes(79), flow}})
        .getRow(0);
  }
  void Answer(const corvane::CorvaneStream& answer) {
    host.libraries.SetAnswer(Library::kSafeCom, 5, fakehost::Text(answer.toString()));
  }

  ScreenHost host;
};

TEST_F(AuditFoot, ShowsTheRecordAndItsSteps) {
  WhenShown<TfrmEBillAuditFoot> look([](TfrmEBillAuditFoot& form) {
    std::string values;
    for (const TLabel* label : {form.m_lbBsnValue, form.m_lbOporName, form.m_lbOponTimeValue, form.m_lbPayAcc,
                                form.m_lbRcvAcc, form.m_lbAmtValue, form.m_lbCryValue}) {
      values += label->Caption() + "|";
    }
    EXPECT_EQ(values, "Pledge|Li|2026-11-22 10:20|A1-Payer|A2-Payee|10.00 yuan|CNY|");
    EXPECT_EQ(form.m_lbPurValue->Caption(), Bytes(78) + " a");
    EXPECT_EQ(form.m_lbPurValue->Hint(), Bytes(79));
    EXPECT_EQ(form.m_lbAmtValue->Hint(), "10.00 yuan");
    ASSERT_EQ(form.m_lvMain->Items().Count(), 2);
    EXPECT_EQ(form.m_lvMain->Items()[1]->Caption(), "Wang");
    // A width of 0 hides a column, and here leaves it without a format.
    const int tags[] = {0, 2, 0, 0, 0, 5};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(form.m_lvMain->Columns()[i]->Tag(), tags[i]) << i;
    EXPECT_TRUE(form.m_lvMain->Columns()[3]->Hidden());
    EXPECT_TRUE(form.m_lvMain->Columns()[4]->Hidden());
    form.m_btnClose->Click();
  });
  ShowAuditFoot(Record(""), ScreenHost::ListOf({{"OPRNM", "AGREE"}, {"Li", "yes"}, {"Wang", "no"}}));
  EXPECT_TRUE(look.Came());
  EXPECT_TRUE(host.failures.empty());
}

TEST_F(AuditFoot, AFailingColumnTableIsReportedAndAPurposeWithoutEndStaysOnTheScreen) {
  host.libraries.SetAnswer(Library::kPublicInformation, 90, {"FIELDDEF", "TfrmEBillAuditFoot"},
                           fakehost::Refusal("no table"));
  host.SetErrorText("no table", "none");
  corvane::Row record = Record("");
  record["INMEMO"] = Bytes(2000000);
  WhenShown<TfrmEBillAuditFoot> look([](TfrmEBillAuditFoot& form) {
    EXPECT_LT(form.Height(), Screen->Height());
    EXPECT_TRUE(form.m_lbPurValue->Hint() == Bytes(2000000));
    EXPECT_EQ(form.m_lvMain->Columns().Count(), 0);
    form.Close();
  });
  EXPECT_EQ(FailureOf([&] { ShowAuditFoot(record, {}); }), "none");
  EXPECT_TRUE(look.Came());
}

TEST_F(AuditFoot, AsksForTheFlowAndWarnsWhereThereIsNone) {
  const struct {
    const char* name;
    const char* flow;
    corvane::CorvaneStream answer;
    std::string warning;
    std::size_t requests;
  } cases[] = {{"no flow", "", Flow("0", {Batch()}), "UI42801", 0},
               {"nothing behind it", "F1", Flow("1", {}), "UI42801", 1},
               {"a flow", "F1", Flow("0", {Batch()}), "", 2}};
  for (const auto& row : cases) {
    Answer(row.answer);
    std::string warning;
    WhenShown<TfrmViewBsnFlow> view([](TfrmViewBsnFlow& form) { form.m_btnClose->Click(); });
    WhenShown<TfrmEBillAuditFoot> step([&](TfrmEBillAuditFoot& form) {
      warning = MessageOf([&] { form.m_btnViewFlow->Click(); });
      form.Close();
    });
    ShowAuditFoot(Record(row.flow), {});
    EXPECT_EQ(warning, row.warning) << row.name;
    EXPECT_EQ(view.Came(), row.warning.empty()) << row.name;
    EXPECT_EQ(host.Requests("COMQRYFW").size(), row.requests) << row.name;
  }
  EXPECT_EQ(host.Requests("COMQRYFW").back(),
            "<?xml version=\"1.0\" encoding=\"GBK\"?><stream><FLOWID>F1</FLOWID></stream>");
  host.RefuseExchange("ET1");
  WhenShown<TfrmEBillAuditFoot> step([&](TfrmEBillAuditFoot& form) {
    FailureOf([&] { form.m_btnViewFlow->Click(); });
    EXPECT_TRUE(form.Showing());
    form.Close();
  });
  ShowAuditFoot(Record("F1"), {});
}

TEST_F(AuditFoot, TheFlowIsATreeOfLevelsAndTheirOperators) {
  const corvane::List first = Step("PSTLEVEL1", "First", {{"2", "Wang", "Head"}, {"3", "Wu", "Branch"}});
  const corvane::List second = Step("PSTLEVEL2", "Second", {});
  const std::string entry = "Entry=BATCH(1-Li(Head)=1)";
  const struct {
    const char* name;
    corvane::CorvaneStream flow;
    std::string tree;
  } cases[] = {
      {"batch step alone", Flow("0", {Batch()}), "Pledge=BSNNM(" + entry + ")"},
      {"below nothing", Flow("-1", {Batch(), first}), "Pledge=BSNNM(" + entry + ")"},
      {"two levels", Flow("2", {Batch(), first, second}),
       "Pledge=BSNNM(" + entry + " First=PSTLEVEL1(2-Wang(Head)=2 3-Wu(Branch)=3) Second=PSTLEVEL2)"},
      {"no batch step, a level that is missing", Flow("2", {second}), "Pledge=BSNNM(= Second=PSTLEVEL2)"}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    const TFormPointer<TfrmViewBsnFlow> form(CreateForm<TfrmViewBsnFlow>(Application, row.flow));
    form->Show();
    EXPECT_EQ(TreeOf(form->m_tvBsnFlowID, form->m_tvBsnFlowID->Roots(0)), row.tree);
    EXPECT_TRUE(form->m_tvBsnFlowID->Roots(0)->Expanded());
    EXPECT_EQ(form->Tag(), 1);
  }
}

TEST_F(AuditFoot, ANumberOfLevelsIsStrictAndBounded) {
  std::size_t reported = 0;
  for (const char* total : {"", "two", "2 levels", "99999999999", "$2", "0x2", " 2", "+2"}) {
    const TFormPointer<TfrmViewBsnFlow> wrong(
        CreateForm<TfrmViewBsnFlow>(Application, Flow(total, {Batch()})));
    wrong->Show();
    EXPECT_EQ(host.failures.size(), ++reported) << total;
    EXPECT_EQ(wrong->m_tvBsnFlowID->RootCount(), 0) << total;
  }
  const TFormPointer<TfrmViewBsnFlow> form(
      CreateForm<TfrmViewBsnFlow>(Application, Flow("2000000000", {Batch()})));
  form->Show();
  EXPECT_EQ(form->m_tvBsnFlowID->Roots(0)->Count(), 1 + TfrmViewBsnFlow::kEmptyLevels);
}

}  // namespace
