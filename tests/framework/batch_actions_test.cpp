// What the batch actions send, and what they make of the answers, through the payment screen.
#include <gtest/gtest.h>

#include "dialogs/audit_foot_form.h"
#include "dialogs/audit_form.h"
#include "dialogs/booking_form.h"
#include "dialogs/com_msg.h"
#include "framework/business/batch_rows.h"
#include "tests/framework/payment_screen.h"
#include "tests/support/screen_host.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/edits.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/panels.h"

using fakehost::Library;

namespace {

using Table = ScreenHost::Table;

constexpr const char* kHead = "<?xml version=\"1.0\" encoding=\"GBK\"?><stream>";

const Table kPayments = {{"ORDERNO", "STT", "LASTOPRNO", "PREFLG", "PREDATE", "PAYAMT", "FLOWID", "TRNAMT"},
                         {"O1", "", "007", "0", "", "10.00", "F1", "1"},
                         {"O2", "8", "007", "0", "", "", "F2", "2"},
                         {"O3", "10", "007", "0", "", "1000000.50", "F3", "3"},
                         {"O4", "0", "007", "0", "", "5", "F4", "4"},
                         {"O5", "2", "008", "0", "", "5", "F5", "5"},
                         {"O6", "4", "007", "1", "2026-11-23", "5", "F6", "6"},
                         {"O7", "4", "007", "1", "2026-11-22", "5", "F7", "7"},
                         {"O8", "4", "007", "1", "", "5", "F8", "8"},
                         {"O9", "4", "007", "0", "2026-11-23", "5", "F9", "9"}};

// Answers every message with yes while it lives, and keeps their texts.
struct Answers {
  Answers() {
    timer.callOnTimeout([this] {
      auto* message = static_cast<TFrmComMsg*>(ShownForm(TFrmComMsg::staticMetaObject));
      if (message == nullptr) return;
      texts.push_back(message->m_lblInfo->Caption());
      message->m_btnOk->Click();
    });
    timer.start(5);
  }
  std::vector<std::string> texts;
  QTimer timer;
};

struct BatchActions : testing::Test {
  void SetUp() override {
    Table columns;
    for (const std::string& id : kPayments[0]) columns.push_back({id, "UI99999", "10", "L", "C"});
    columns[5] = {"PAYAMT", "UI41034", "100", "R", "M"};
    host.SetColumns("TfrmPaymentQry", columns);
    host.SetTable("BUSINESSDICT", "YESORNO",
                  ScreenHost::ListOf({{"TYPEKEY", "TYPE"}, {"0", "UI53029"}, {"1", "UI53030"}}));
    for (const char* key : {"UI52140", "UI52142", "UI52144", "UI52148", "UI52150", "UI52879", "UI53029",
                            "UI53030", "UI41034", "UI52438", "UI51028", "UI51029", "UI51030", "UI51031"}) {
      host.SetText(key, key);
    }
    form = CreateForm<TfrmPaymentQry>(Application);
    form->Show();
    Fill(kPayments);
  }
  void Fill(const Table& payments) {
    host.SetAnswerRows(ScreenHost::ListOf(payments));
    form->m_actQuery->Execute();
  }
  void Tick(std::initializer_list<int> ticked) {
    form->m_lvMain->UnCheckAll();
    for (const int i : ticked) form->m_lvMain->Items()[i]->SetChecked(true);
    form->m_lvMainItemCheck(form->m_lvMain, form->m_lvMain->Items()[0]);
  }
  std::string Column(const char* field) const {
    std::string values;
    for (int i = 0; i < form->m_lvMain->Items().Count(); ++i)
      values += form->m_lvMain->Items()[i]->Data()->getValue(field) + "|";
    return values;
  }
  std::string Status() const { return form->m_pnStatusText->Caption(); }
  // The last request of a transaction, without its prolog.
  std::string Request(const char* code) const {
    const std::vector<std::string> requests = host.Requests(code);
    if (requests.empty() || !requests.back().starts_with(kHead)) return "";
    return requests.back().substr(std::string(kHead).size());
  }

  ScreenHost host;
  TfrmPaymentQry* form = nullptr;
};

TEST_F(BatchActions, SynchronizesTheStatesOfTheRecordsThatHaveNone) {
  EXPECT_FALSE(form->m_pnlAdvance->Visible()) << "a screen without advanced conditions";
  Tick({0, 1, 2, 3});
  ASSERT_TRUE(form->m_actSynState->Enabled());
  host.SetAnswerRows(ScreenHost::ListOf(
      {{"RECORDID", "STT"}, {"0", "7"}, {"2", "2"}, {"9", "2"}, {"-1", "2"}, {"one", "2"}, {"", "2"}}));
  form->m_actSynState->Execute();
  EXPECT_EQ(Request("COMSTTKP"),
            "<list name=\"userDataList\"><row><ORDERNO>O1</ORDERNO><RECORDID>0</RECORDID></row>"
            "<row><ORDERNO>O3</ORDERNO><RECORDID>2</RECORDID></row></list></stream>");
  EXPECT_TRUE(Column("STT").starts_with("UI52879|UI52148|UI52142|UI52140|UI52142|")) << Column("STT");
  EXPECT_FALSE(form->m_actSynState->Enabled());
  EXPECT_FALSE(form->m_actDelete->Enabled());
  EXPECT_TRUE(host.failures.empty());
}

TEST_F(BatchActions, ARefusedExchangeLeavesTheListAndTheActionAsTheyWere) {
  const struct {
    TAction* action;
    int ticked;
    const char* transaction;
  } cases[] = {{form->m_actSynState, 0, "COMSTTKP"},
               {form->m_actReason, 1, "COMREASON"},
               {form->m_actDelete, 3, "EBBCMCOQ"},
               {form->m_actViewAuditFoot, 0, "COMQRYAT"}};
  host.SetErrorText("ET9", "refused");
  host.RefuseExchange("ET9");
  const std::string before = Column("STT");
  for (const auto& row : cases) {
    SCOPED_TRACE(row.transaction);
    Tick({row.ticked});
    ASSERT_TRUE(row.action->Enabled());
    Answers answers;
    EXPECT_EQ(FailureOf([&] { row.action->Execute(); }), "refused");
    EXPECT_EQ(host.Requests(row.transaction).size(), 1u);
    EXPECT_TRUE(row.action->Enabled());
    EXPECT_EQ(Column("STT"), before);
  }
  form->m_lvMain->SetItemIndex(1);
  (*form->m_lvMain->PropertyOf(form->m_lvMain->Items()[1]))["Reason"] = "known since";
  Tick({1});
  FailureOf([&] { form->m_actReason->Execute(); });
  EXPECT_EQ(Status(), "known since");
}

TEST_F(BatchActions, AStateThatIsNoNumberIsReportedAndEndsNothing) {
  Tick({0});
  host.SetAnswerRows(ScreenHost::ListOf({{"RECORDID", "STT"}, {"0", "done"}}));
  form->m_actSynState->Execute();
  EXPECT_EQ(host.failures.size(), 1u);
  EXPECT_TRUE(Column("STT").starts_with("UI52150|"));
  EXPECT_TRUE(form->m_actSynState->Enabled());
}

TEST_F(BatchActions, ShowsTheReasonThatTheBankGives) {
  host.SetErrorText("E1", "");
  host.libraries.SetAnswer(Library::kError, 4, {"E1", "1"}, fakehost::Text("reason of E1"));
  const struct {
    const char *code, *information, *text;
  } cases[] = {{"", "no cover", "no cover"},
               {"E1", "", "reason of E1"},
               {"", "", "UI52438"},
               {"E1", "no cover", "[E1]no cover"}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(norvik::FailureText(row.code, row.information), row.text);
    Tick({0, 1});
    ASSERT_TRUE(form->m_actReason->Enabled());
    form->m_lvMain->SetItemIndex(1);
    host.SetAnswerRows(ScreenHost::ListOf({{"RECORDID", "ERRCODE", "ERRINF"},
                                           {"1", row.code, row.information},
                                           {"77", "E1", ""},
                                           {"x", "E1", ""}}));
    form->m_actReason->Execute();
    EXPECT_EQ(form->m_lvMain->Items()[1]->Data()->getValue("Reason"), row.text);
    EXPECT_EQ(Status(), row.text);
    EXPECT_TRUE(form->m_actReason->Enabled());
  }
  EXPECT_EQ(Request("COMREASON"),
            "<list name=\"userDataList\"><row><ORDERNO>O2</ORDERNO><RECORDID>1</RECORDID></row>"
            "</list></stream>");
  // Refused within the rows: what came before stays, and shows.
  host.libraries.SetAnswer(Library::kError, 4, {"E2", "1"}, fakehost::Refusal("gone"));
  host.SetAnswerRows(
      ScreenHost::ListOf({{"RECORDID", "ERRCODE", "ERRINF"}, {"1", "", "late"}, {"0", "E2", ""}}));
  form->m_lvMain->SetItemIndex(1);
  form->m_actReason->Execute();
  EXPECT_EQ(Status(), "late");
  EXPECT_EQ(host.failures.size(), 1u);
  form->m_lvMain->SetItemIndex(-1);
  form->m_actReason->Execute();
  EXPECT_EQ(Status(), "");
}

TEST_F(BatchActions, CancelsTheTickedRecordsAndKeepsTheRefusedOnes) {
  Tick({3, 5});
  corvane::CorvaneStream answer;
  answer.addFields(ScreenHost::ListOf({{"SUCTOTALNUM", "SUCTOTALMONEY", "ERRTOTALNUM", "ERRTOTALMONEY"},
                                       {"1", "5.00", "1", "5.00"}})
                       .getRow(0));
  corvane::List refused =
      ScreenHost::ListOf({{"ID", "FLAG"}, {"5", "too late"}, {"99", "x"}, {"", "y"}, {"a", "z"}});
  refused.setAttribute("name", "resultList");
  answer.addList(refused);
  host.libraries.SetAnswer(Library::kSafeCom, 5, fakehost::Text(answer.toString()));
  EXPECT_EQ(MessageOf([&] { form->m_actDelete->Execute(); }, false), "UI53250");
  EXPECT_TRUE(host.Requests("EBBCMCOQ").empty());
  Answers answers;
  form->m_actDelete->Execute();
  EXPECT_EQ(answers.texts, (std::vector<std::string>{
                               "UI53250", "UI51028\t1\r\nUI51029\t5.00\r\nUI51030\t1\r\nUI51031\t5.00"}));
  EXPECT_EQ(Request("EBBCMCOQ"),
            "<BSNCODE>CB000001</BSNCODE><TOTALTRAM>10.00</TOTALTRAM><TRNSUM>2</TRNSUM>"
            "<list name=\"userDataList\"><row><ID>3</ID><ORDERNO>O4</ORDERNO><TRNAMT>5</TRNAMT></row>"
            "<row><ID>5</ID><ORDERNO>O6</ORDERNO><TRNAMT>5</TRNAMT></row></list></stream>");
  EXPECT_EQ(Column("ORDERNO"), "O1|O2|O3|O5|O6|O7|O8|O9|");
  EXPECT_EQ(form->m_lvMain->Items()[4]->Data()->getValue("Reason"), "too late");
  EXPECT_EQ(form->m_lvMain->Items()[4]->Data()->getValue("Color"), "255");
  EXPECT_EQ(form->m_lvMain->CheckedCount(), 1);
}

TEST_F(BatchActions, TheAmountOfACancelledRecordIsItsBusinessSumIfItHasThatField) {
  const struct {
    Table record;
    const char* amount;
  } cases[] = {{{{"ORDERNO"}, {"O1"}}, "0"},
               {{{"PAYAMT"}, {"10"}}, "10"},
               {{{"PAYAMT"}, {""}}, "0"},
               {{{"PAYAMT", "BUSSUM"}, {"10", ""}}, "0"},
               {{{"PAYAMT", "BUSSUM"}, {"10", "7.5"}}, "7.5"},
               {{{"BUSSUM"}, {"7.5"}}, "7.5"}};
  for (const auto& row : cases)
    EXPECT_EQ(norvik::CancelAmount(ScreenHost::ListOf(row.record).getRow(0)), row.amount)
        << testing::PrintToString(row.record);
}

TEST_F(BatchActions, WithoutAnAmountColumnTheTotalIsZero) {
  host.SetColumns("TfrmPaymentQry", {{"ORDERNO", "UI41034", "10", "L", "C"}});
  host.SetText("UI41034", "another caption");
  form->Intf().InitListColumns(form->m_lvMain, "TfrmPaymentQry");
  host.SetText("UI41034", "UI41034");
  Fill(kPayments);
  Tick({3});
  corvane::CorvaneStream request;
  form->BuildDeleteRequest(request);
  EXPECT_EQ(request.getValue("TOTALTRAM"), "0.00");
}

TEST_F(BatchActions, ShowsTheAuditTrailOfTheTickedRecord) {
  host.SetText("UI52424", "approved");
  host.SetColumns("TfrmEBillAuditFoot",
                  {{"OPRNM", "UI41034", "100", "L", "C"}, {"AGREE", "UI41034", "50", "L", "C"}});
  Tick({1});
  host.SetAnswerRows(ScreenHost::ListOf({{"OPRNM", "AGREE"}, {"Li", "0"}, {"Wu", "8"}}));
  std::string shown;
  WhenShown<TfrmEBillAuditFoot> look([&](TfrmEBillAuditFoot& foot) {
    shown = foot.m_lbBsnValue->Caption() + " " + foot.m_lbAmtValue->Caption();
    for (int i = 0; i < 2; ++i) shown += " " + foot.m_lvMain->Items()[i]->SubItems(0);
    foot.Close();
  });
  form->m_actViewAuditFoot->Execute();
  EXPECT_EQ(shown, "Payments  UI42802 approved 8");
  EXPECT_EQ(Request("COMQRYAT"), "<ORDERNO>O2</ORDERNO></stream>");
  EXPECT_TRUE(form->m_actViewAuditFoot->Enabled());
  Tick({});
  form->m_actViewAuditFootExecute(form);
  EXPECT_EQ(host.Requests("COMQRYAT").size(), 1u);
}

TEST_F(BatchActions, ADealRequestCarriesTheBookingOfTheUser) {
  Tick({0, 3});
  const std::string rows =
      "<list name=\"userDataList\">"
      "<row><FLOWID>F1</FLOWID><ID>0</ID><ORDERNO>O1</ORDERNO><TRNAMT>10.00</TRNAMT></row>"
      "<row><FLOWID>F4</FLOWID><ID>3</ID><ORDERNO>O4</ORDERNO><TRNAMT>5</TRNAMT></row></list></stream>";
  const struct {
    int item;
    bool confirms;
    const char *flag, *date;
  } cases[] = {{TfrmBookingProc::kAtOnce, true, "0", ""},
               {TfrmBookingProc::kScheduled, true, "1", "20261123"},
               {TfrmBookingProc::kScheduled, false, "0", ""}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.confirms ? row.flag : "cancelled");
    corvane::CorvaneStream source, request;
    source.addField(corvane::Field("BSNCODE", "B"));
    source.addField(corvane::Field("OTHER", "x"));
    WhenShown<TfrmBookingProc> step([&](TfrmBookingProc& booking) {
      booking.m_grpPreFlg->SetItemIndex(row.item);
      (row.confirms ? booking.m_btnOk : booking.m_btnCancel)->Click();
    });
    EXPECT_EQ(form->BuildDealRequest(source, request, false), row.confirms);
    const std::string date =
        row.date[0] == '\0' ? "<PREDATE/>" : std::string("<PREDATE>") + row.date + "</PREDATE>";
    EXPECT_EQ(request.toString(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?><stream>"
              "<AGREEFLAG/><AGREEREM/><BATNO/><BSNCODE>B</BSNCODE><DEALNOASK>1</DEALNOASK><FLAG/><FLOWID/>" +
                  date + "<PREFLG>" + row.flag + "</PREFLG><PRETIME/><TALNUM/>" + rows);
  }
}

TEST_F(BatchActions, TheScreenAuditsTheTickedRecords) {
  Tick({0, 8});
  host.SetAnswerRows(ScreenHost::ListOf({{"ID", "FLAG"}, {"8", "no"}}));
  WhenShown<TfrmAudit> step([](TfrmAudit& audit) { audit.m_btnOk->Click(); });
  form->m_actAudit->Execute();
  EXPECT_EQ(
      Request("PAYAUDIT"),
      "<AGREEFLAG>0</AGREEFLAG><AGREEREM/><BPBSNCODE>CB000001</BPBSNCODE><FLAG>0</FLAG>"
      "<SUBTYPE>0</SUBTYPE><list name=\"userDataList\">"
      "<row><FLOWID>F1</FLOWID><ID>0</ID><ORDERNO>O1</ORDERNO><TRNAMT>1</TRNAMT></row>"
      "<row><FLOWID>F9</FLOWID><ID>8</ID><ORDERNO>O9</ORDERNO><TRNAMT>9</TRNAMT></row></list></stream>");
  EXPECT_EQ(Column("ORDERNO"), "O2|O3|O4|O5|O6|O7|O8|O9|");
}

}  // namespace
