// The audit requests that CMQueryIntf builds from the ticked records of a list.
#include <gtest/gtest.h>

#include "dialogs/audit_form.h"
#include "dialogs/com_msg.h"
#include "framework/business/audit_verdict.h"
#include "framework/business/m_detail_intf.h"
#include "framework/business/m_query_intf.h"
#include "tests/data/keys.h"
#include "tests/support/screen_host.h"
#include "toolkit/application.h"
#include "toolkit/kvx_list_view.h"

namespace {

using Table = ScreenHost::Table;

const Table kRecords = {
    {"ORDERNO", "FLOWID", "TRNAMT", "PREFLG", "PREDATE", "PRETIME", "BATNO", "TOTALAMOUNT", "SMTDATE"},
    {"O1", "F1", "1.00", "", "", "", "B1", "3", "20261120"},
    {"O2", "F2", "2.00", "booked", "2026-11-22", "120000", "B2", "4", "20261121"},
    {"O3", "F3", "3.00", "booked", "2026-11-22", "110000", "B3", "5", "20261122"}};

constexpr const char* kRows =
    "<list name=\"userDataList\"><row><FLOWID>F1</FLOWID><ID>0</ID><ORDERNO>O1</ORDERNO><TRNAMT>1.00</TRNAMT>"
    "</row><row><FLOWID>F2</FLOWID><ID>1</ID><ORDERNO>O2</ORDERNO><TRNAMT>2.00</TRNAMT></row></list>";

// How the approver answers the audit dialog.
struct Verdict {
  bool confirms = true;
  bool agrees = true;
  std::string opinion;
};

struct AuditRequests : testing::Test {
  void SetUp() override {
    host.SetText("UI52019", "booked");
    for (const char* key : {"UI52869", "UI52934", "UI53317"}) host.SetText(key, key);
    list = NewComponent<TKVXListView>(CreateForm<TForm>(Application), "m_lvMain");
    list->SetCheckboxes(true);
    list->Add(ScreenHost::ListOf(kRecords), "ORDERNO");
  }
  void Tick(std::initializer_list<int> ticked) {
    list->UnCheckAll();
    for (const int i : ticked) list->Items()[i]->SetChecked(true);
  }
  // Runs a builder with an approver who answers the dialog; returns the message that was shown, which is
  // answered yes or no.
  template <class Build>
  std::string Run(const Verdict& verdict, bool yes, Build&& build) {
    WhenShown<TfrmAudit> approver([&verdict](TfrmAudit& form) {
      form.m_rdgAudit->SetItemIndex(verdict.agrees ? TfrmAudit::kAgree : TfrmAudit::kDisagree);
      form.m_memInfo->SetText(verdict.opinion);
      (verdict.confirms ? form.m_btnOk : form.m_btnCancel)->Click();
    });
    const std::string message = MessageOf(std::forward<Build>(build), yes);
    asked = approver.Came();
    return message;
  }
  // The content of a request's text.
  static std::string Text(const corvane::CorvaneStream& request) {
    const std::string text = request.toString();
    const std::size_t start = text.find("<stream>");
    return start == std::string::npos ? "" : text.substr(start + 8, text.size() - start - 8 - 9);
  }

  ScreenHost host;
  CMQueryIntf business;
  TKVXListView* list = nullptr;
  bool asked = false;
};

TEST_F(AuditRequests, ASingleAuditSendsVerdictAndRows) {
  Tick({0, 1});
  const std::string fine(200, 'a');
  const std::string rows = kRows;
  const struct {
    const char* name;
    Verdict verdict;
    bool built;
    std::string message, text;
  } cases[] = {{"agreed",
                {true, true, ""},
                true,
                "",
                "<AGREEFLAG>0</AGREEFLAG><AGREEREM/><BPBSNCODE>C</BPBSNCODE>"
                "<FLAG>0</FLAG><SUBTYPE>7</SUBTYPE>" +
                    rows},
               {"refused, 200 bytes",
                {true, false, fine},
                true,
                "",
                "<AGREEFLAG>1</AGREEFLAG><AGREEREM>" + fine +
                    "</AGREEREM><BPBSNCODE>C</BPBSNCODE><FLAG>0</FLAG><SUBTYPE>7</SUBTYPE>" + rows},
               {"201 bytes", {true, true, fine + "b"}, false, "UI52934", rows},
               {"cancelled", {false, true, ""}, false, "", rows}};
  for (const auto& row : cases) {
    corvane::CorvaneStream request;
    bool built = !row.built;
    const std::string message =
        Run(row.verdict, true, [&] { built = business.BuildAuditRequest(list, "C", request, 7); });
    EXPECT_EQ(built, row.built) << row.name;
    EXPECT_EQ(message, row.message) << row.name;
    EXPECT_EQ(Text(request), row.text) << row.name;
    EXPECT_TRUE(asked) << row.name;
  }
}

TEST_F(AuditRequests, ASubTypeTakesTheVerdictAsItComes) {
  Tick({0});
  const struct {
    std::int32_t subType;
    bool asked, agree;
    const char* remark;
  } cases[] = {{0, true, false, "new"}, {3, false, true, "old"}};
  for (const auto& row : cases) {
    SCOPED_TRACE("remark " + std::string(row.remark));
    corvane::CorvaneStream request;
    bool agree = true;
    std::string remark = "old";
    Run({true, false, "new"}, true, [&] {
      EXPECT_TRUE(business.BuildAgreedAuditRequest(list, "C", request, agree, remark, row.subType));
    });
    EXPECT_EQ(asked, row.asked) << row.subType;
    EXPECT_EQ(agree, row.agree);
    EXPECT_EQ(remark, row.remark);
    EXPECT_EQ(request.getValue("AGREEFLAG"), row.agree ? "0" : "1");
    EXPECT_EQ(request.getValue("AGREEREM"), row.remark);
    EXPECT_EQ(request.getValue("SUBTYPE"), std::to_string(row.subType));
  }
}

TEST_F(AuditRequests, ABatchIsThatOfTheFirstTickedRecord) {
  Tick({1, 2});
  corvane::CorvaneStream request;
  bool built = false;
  EXPECT_EQ(
      Run({true, true, "fine"}, true, [&] { built = business.BuildBatchAuditRequest(list, "C", request); }),
      "UI53317");
  EXPECT_TRUE(built);
  EXPECT_EQ(Text(request),
            "<AGREEFLAG>0</AGREEFLAG><AGREEREM>fine</AGREEREM><BATNO>B2</BATNO><BPBSNCODE>C</BPBSNCODE>"
            "<FLAG>1</FLAG><FLOWID>F2</FLOWID><SMTDATE>20261121</SMTDATE><TALNUM>4</TALNUM>");
  corvane::CorvaneStream cancelled;
  EXPECT_EQ(Run({}, false, [&] { built = business.BuildBatchAuditRequest(list, "C", cancelled); }),
            "UI53317");
  EXPECT_FALSE(built || asked);
  Tick({0});
  Run({false, true, ""}, true, [&] { built = business.BuildBatchAuditRequest(list, "C", cancelled); });
  EXPECT_FALSE(built);
  EXPECT_EQ(cancelled.getFields().size(), 0u);
  Tick({});
  EXPECT_EQ(KeyOf([&] { business.BuildBatchAuditRequest(list, "C", request); }), "ET10104");
}

TEST_F(AuditRequests, NothingTickedAndADeclinedBookingSendNothing) {
  const struct {
    std::initializer_list<int> ticked;
    bool yes;
    const char* message;
    bool built;
  } cases[] = {
      {{}, true, "UI52869", false}, {{0, 2}, false, "UI53317", false}, {{0, 2}, true, "UI53317", true}};
  for (const auto& row : cases) {
    SCOPED_TRACE(testing::PrintToString(row.ticked) + (row.yes ? " yes" : " no"));
    Tick(row.ticked);
    corvane::CorvaneStream request;
    bool built = !row.built;
    EXPECT_EQ(Run({}, row.yes, [&] { built = business.BuildAuditRequest(list, "C", request, 0); }),
              row.message);
    EXPECT_EQ(built, row.built);
    EXPECT_EQ(asked, row.built);
    EXPECT_EQ(request.getList("userDataList").size(), row.built ? 2u : 0u);
    EXPECT_EQ(Run({}, false, [&] { EXPECT_TRUE(business.ConfirmBookedRecords()); }), "")
        << "the records under audit are forgotten";
  }
}

TEST_F(AuditRequests, ADetailAuditHasNoSubTypeAndAsksOfNoBooking) {
  CMDetailIntf detail;
  const std::string rows = kRows;
  const struct {
    const char* name;
    std::initializer_list<int> ticked;
    Verdict verdict;
    bool built;
    std::string message, text;
  } cases[] = {
      {"nothing ticked", {}, {}, false, "UI52869", ""},
      {"refused",
       {0, 1},
       {true, false, "no"},
       true,
       "",
       "<AGREEFLAG>1</AGREEFLAG><AGREEREM>no</AGREEREM><BPBSNCODE>C</BPBSNCODE><FLAG>0</FLAG>" + rows},
      {"201 bytes", {0, 1}, {true, true, std::string(201, 'a')}, false, "UI52934", rows},
      {"cancelled", {0, 1}, {false, true, ""}, false, "", rows}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    Tick(row.ticked);
    corvane::CorvaneStream request;
    bool built = !row.built;
    EXPECT_EQ(Run(row.verdict, true, [&] { built = detail.BuildDetailAuditRequest(list, "C", request); }),
              row.message);
    EXPECT_EQ(built, row.built);
    EXPECT_EQ(Text(request), row.text);
  }
}

TEST(PastBooking, IsOneWhoseHourLiesBeforeThePresentOne) {
  const struct {
    const char *flag, *date, *time;
    bool past;
  } cases[] = {{"booked", "2026-11-22", "110000", true},
               {"booked", "2026-11-22", "120000", false},
               {"booked", "2026-11-22", "115959", true},
               {"booked", "2026-11-22", "13", false},
               {"booked", "2026-11-21", "230000", true},
               {"booked", "2026-12-01", "000000", false},
               {"booked", "9999-12-31", "230000", false},
               {"at once", "2026-11-21", "230000", false},
               {"booked", "", "", true},
               {"booked", "2026-11", "12", true},
               {"booked", "2026-1x-22", "12", true},
               {"", "2026-11-21", "23", false}};
  for (const auto& row : cases) {
    corvane::Row record;
    record["PREFLG"] = row.flag;
    record["PREDATE"] = row.date;
    record["PRETIME"] = row.time;
    EXPECT_EQ(norvik::IsPastBooking(record, "booked", "2026112212"), row.past) << row.date << row.time;
  }
  EXPECT_FALSE(norvik::IsPastBooking(corvane::Row(), "", "2026112212"));
}

}  // namespace
