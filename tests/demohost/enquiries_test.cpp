#include <gtest/gtest.h>

#include "demohost/bank/bank.h"
#include "demohost/refusals.h"
#include "platform/code_page.h"
#include "tests/demohost/folder.h"
#include "tests/demohost/test_plan.h"

namespace demohost {
namespace {

class EnquiriesTest : public testing::Test {
 protected:
  EnquiriesTest()
      : database_(OpenBank(folder_ / "bank.sqlite", TestPlan(400))),
        bank_(OpenBank(folder_ / "bank.sqlite", TestPlan(400)), *DayOf("20260615")) {}

  corvane::CorvaneStream Ask(const char* code, const Fields& fields, const std::vector<Fields>& rows = {}) {
    return corvane::CorvaneStream(bank_.Exchange(code, Request(fields, rows)));
  }

  std::string RefusalOf(const char* code, const Fields& fields, const std::vector<Fields>& rows = {}) {
    try {
      bank_.Exchange(code, Request(fields, rows));
    } catch (const Refused& refused) {
      return refused.Lines();
    }
    return "answered";
  }

  static std::string Request(const Fields& fields, const std::vector<Fields>& rows) {
    corvane::CorvaneStream request;
    for (const auto& [name, value] : fields) request.addField(corvane::Field(name, value));
    corvane::List list;
    list.setAttribute("name", "userDataList");
    for (const Fields& rowFields : rows) {
      corvane::Row row;
      for (const auto& [name, value] : rowFields) row[name] = value;
      list.addRow(row);
    }
    if (!rows.empty()) request.addList(list);
    return request.toString();
  }

  // The columns of the first row that a statement finds.
  std::vector<std::string> First(const std::string& sql) {
    Statement statement = database_.Prepare(sql);
    EXPECT_TRUE(statement.Step()) << sql;
    std::vector<std::string> columns;
    for (int column = 0; column < statement.ColumnCount(); ++column)
      columns.emplace_back(statement.Text(column));
    return columns;
  }

  Folder folder_;
  Database database_;
  Bank bank_;
};

TEST_F(EnquiriesTest, TellWhatIsKnownOfABill) {
  const auto bill = First(
      "SELECT b.BILLSID, b.QURYNUM, b.CUSTACC, b.BILLNUM, b.BILLTYP, b.ACCPBNM || b.ACPNM, count(e.ID) "
      "FROM bill b JOIN enquiry e ON e.BILL = b.ID AND e.SYSTEM = 'ECDS' "
      "WHERE b.BILLSID <> '' AND b.QURYNUM <> '' GROUP BY b.ID");
  const Fields byId = {{"QURYTYP", "1"}, {"BILLSID", bill[0]}, {"QURYNUM", ""}, {"CUSTACC", bill[2]}};
  const Fields byNumber = {{"QURYTYP", "2"}, {"BILLSID", ""}, {"QURYNUM", bill[1]}, {"CUSTACC", bill[2]}};
  const Fields byBoth = {{"QURYTYP", "1"}, {"BILLSID", bill[0]}, {"QURYNUM", bill[1]}, {"CUSTACC", bill[2]}};
  for (const Fields& fields : {byId, byNumber, byBoth}) {
    SCOPED_TRACE("QURYTYP " + fields.at("QURYTYP") + ", QURYNUM " + fields.at("QURYNUM"));
    corvane::CorvaneStream answer = Ask("EBBADEHQ", fields);
    EXPECT_EQ(answer.getValue("BILLNUM"), bill[3]);
    EXPECT_EQ(answer.getValue("BILLTYP"), bill[4]);
    EXPECT_EQ(answer.getValue("ACCPBNM"), bill[5]);
    EXPECT_EQ(answer.getValue("TOTALNM"), bill[6]);
    EXPECT_EQ(std::to_string(answer.getList("resultList").size()), bill[6]);
    EXPECT_TRUE(answer.getList("resultList")[0].hasField("QURYCNT"));
  }

  const auto registered = First(
      "SELECT b.BILLSID, b.CUSTACC, r.INFOTYP FROM bill b JOIN registration r ON r.BILL = b.ID "
      "WHERE b.BILLSID <> ''");
  corvane::CorvaneStream answer =
      Ask("EBBADERQ",
          {{"QURYTYP", "1"}, {"BILLSID", registered[0]}, {"QURYNUM", ""}, {"CUSTACC", registered[1]}});
  EXPECT_EQ(answer.getList("resultList")[0].getValue("INFOTYP"), registered[2]);

  const auto large = First(
      "SELECT b.BILLSID, b.CUSTACC, b.BILLNUM, count(*) "
      "FROM bill b JOIN enquiry e ON e.BILL = b.ID AND e.SYSTEM = 'HVPS' "
      "WHERE b.BILLSID <> '' GROUP BY b.ID");
  corvane::CorvaneStream result =
      Ask("EBBADHHQ", {{"BILLSID", large[0]}, {"CUSTACC", large[1]}, {"BILLNUM", large[2]}});
  EXPECT_EQ(std::to_string(result.getList("resultList").size()), large[3]);
}

TEST_F(EnquiriesTest, RefuseWhatNamesNoBillOfTheAccount) {
  const auto bill = First("SELECT BILLSID, CUSTACC, BILLNUM FROM bill WHERE BILLSID <> ''");
  const auto other = First("SELECT CUSTACC FROM bill WHERE CUSTACC <> '" + bill[1] + "'");
  const auto ecds = [](const char* kind, const std::string& id, const char* number, const char* account) {
    Fields fields = {{"QURYTYP", kind}, {"BILLSID", id}, {"QURYNUM", number}};
    if (account != nullptr) fields["CUSTACC"] = account;
    return fields;
  };
  const struct {
    const char* code;
    Fields fields;
    std::string refusal;
  } cases[] = {
      {"EBBADEHQ", {{"BILLSID", bill[0]}, {"CUSTACC", bill[1]}}, "QURYTYP\r\nBK30003"},
      {"EBBADEHQ", {{"QURYTYP", "3"}, {"CUSTACC", bill[1]}}, "QURYTYP\r\nBK30010"},
      {"EBBADEHQ", {{"QURYTYP", "1"}, {"BILLSID", bill[0]}, {"CUSTACC", bill[1]}}, "QURYNUM\r\nBK30003"},
      {"EBBADEHQ", ecds("1", bill[0], "", nullptr), "CUSTACC\r\nBK30003"},
      {"EBBADEHQ", ecds("2", "", "", bill[1].c_str()), "QURYNUM\r\nBK30015"},
      {"EBBADERQ", ecds("1", "99", "", bill[1].c_str()), "99\r\nBK30015"},
      {"EBBADERQ", ecds("1", bill[0], "", other[0].c_str()), bill[0] + "\r\nBK30015"},
      {"EBBADERQ", ecds("1", bill[0], "QN0", bill[1].c_str()), bill[0] + "\r\nBK30015"},
      {"EBBADHHQ", {{"BILLSID", bill[0]}, {"CUSTACC", bill[1]}, {"BILLNUM", "1"}}, bill[0] + "\r\nBK30015"},
      {"EBBADHHQ", {{"BILLSID", bill[0]}, {"CUSTACC", bill[1]}}, "BILLNUM\r\nBK30003"},
  };
  for (const auto& [code, fields, refusal] : cases) {
    EXPECT_EQ(RefusalOf(code, fields), refusal) << code << ", expected " << refusal;
  }
}

TEST_F(EnquiriesTest, SynchronizeTheStatesOfOpenOrders) {
  const auto open = First("SELECT ORDERNO, FINAL FROM orders WHERE STT = '10'");
  const auto done = First("SELECT ORDERNO, STT FROM orders WHERE STT = '6'");
  corvane::CorvaneStream answer = Ask(
      "COMSTTKP", {}, {{{"RECORDID", "4"}, {"ORDERNO", open[0]}}, {{"RECORDID", "9"}, {"ORDERNO", done[0]}}});
  const corvane::List& list = answer.getList("resultList");
  ASSERT_EQ(list.size(), 2u);
  EXPECT_EQ(list[0].getValue("RECORDID"), "4");
  EXPECT_EQ(list[0].getValue("STT"), open[1]);
  EXPECT_EQ(list[1].getValue("STT"), done[1]);
  EXPECT_EQ(First("SELECT STT FROM orders WHERE ORDERNO = '" + open[0] + "'")[0], open[1]);
  EXPECT_EQ(RefusalOf("COMSTTKP", {}, {{{"RECORDID", "4"}, {"ORDERNO", "none"}}}), "none\r\nBK30017");
  EXPECT_EQ(RefusalOf("COMSTTKP", {}), "userDataList\r\nBK30003");
}

TEST_F(EnquiriesTest, GiveReasonsOfEveryKind) {
  Statement failed = database_.Prepare("SELECT ORDERNO, ERRCODE, ERRINF FROM orders WHERE STT = '8' LIMIT 4");
  int codes = 0;
  int words = 0;
  while (failed.Step()) {
    corvane::CorvaneStream answer =
        Ask("COMREASON", {}, {{{"RECORDID", "0"}, {"ORDERNO", std::string(failed.Text(0))}}});
    const corvane::Row row = answer.getList("resultList").getRow(0);
    EXPECT_EQ(row.getValue("ERRCODE"), failed.Text(1));
    EXPECT_EQ(norvik::Utf8FromAnsi(row.getValue("ERRINF")), failed.Text(2));
    codes += row.getValue("ERRCODE").empty() ? 0 : 1;
    words += row.getValue("ERRINF").empty() ? 0 : 1;
  }
  EXPECT_EQ(codes, 2);
  EXPECT_EQ(words, 2);
}

TEST_F(EnquiriesTest, CancelWhatMayGoAndListTheRest) {
  const auto order = [this](const char* where) {
    return First(std::string("SELECT ORDERNO FROM orders WHERE ") + where)[0];
  };
  const std::vector<std::string> numbers = {
      order("STT = '0'"), order("STT = '6'"), order("STT = '4' AND PREDATE > '2026-06-15'"),
      order("STT = '4' AND PREDATE <= '2026-06-15'"), order("STT = '2'")};
  std::vector<Fields> rows;
  for (std::size_t at = 0; at < numbers.size(); ++at) {
    rows.push_back(
        {{"ID", std::to_string(at)}, {"ORDERNO", numbers[at]}, {"TRNAMT", std::to_string(at + 1) + ".50"}});
  }
  const Fields head = {{"BSNCODE", "CB200320"}, {"TRNSUM", "5"}, {"TOTALTRAM", "17.50"}};
  corvane::CorvaneStream answer = Ask("EBBCMCOQ", head, rows);
  EXPECT_EQ(answer.getValue("SUCTOTALNUM"), "3");
  EXPECT_EQ(answer.getValue("SUCTOTALMONEY"), "10.50");
  EXPECT_EQ(answer.getValue("ERRTOTALNUM"), "2");
  EXPECT_EQ(answer.getValue("ERRTOTALMONEY"), "7.00");
  const corvane::List& failed = answer.getList("resultList");
  ASSERT_EQ(failed.size(), 2u);
  EXPECT_EQ(failed[0].getValue("ID") + failed[0].getValue("FLAG"), "1RS60001");
  EXPECT_EQ(failed[1].getValue("ID") + failed[1].getValue("FLAG"), "3RS60004");
  EXPECT_EQ(First("SELECT STT FROM orders WHERE ORDERNO = '" + numbers[0] + "'")[0], "9");

  const struct {
    const char* field;
    const char* value;
    const char* refusal;
  } cases[] = {{"TRNSUM", "2", "TRNSUM\r\nBK30002"},
               {"BSNCODE", "X", "X\r\nBK30004"},
               {"TOTALTRAM", "1,0", "TOTALTRAM\r\nBK30011"}};
  for (const auto& [field, value, refusal] : cases) {
    Fields wrong = head;
    wrong[field] = value;
    EXPECT_EQ(RefusalOf("EBBCMCOQ", wrong, rows), refusal) << field;
    wrong.erase(field);
    EXPECT_EQ(RefusalOf("EBBCMCOQ", wrong, rows), field + std::string("\r\nBK30003")) << "without " << field;
  }
  rows[4]["TRNAMT"] = "x";
  EXPECT_EQ(RefusalOf("EBBCMCOQ", head, rows), "TRNAMT\r\nBK30011");
}

TEST_F(EnquiriesTest, ARefusedBatchChangesNothing) {
  const std::string number = First("SELECT ORDERNO FROM orders WHERE STT = '0'")[0];
  const Fields head = {{"BSNCODE", "CB200320"}, {"TRNSUM", "2"}, {"TOTALTRAM", "2"}};
  EXPECT_EQ(RefusalOf("EBBCMCOQ", head,
                      {{{"ID", "0"}, {"ORDERNO", number}, {"TRNAMT", "1"}},
                       {{"ID", "1"}, {"ORDERNO", "none"}, {"TRNAMT", "1"}}}),
            "none\r\nBK30017");
  EXPECT_EQ(First("SELECT STT FROM orders WHERE ORDERNO = '" + number + "'")[0], "0");
}

TEST_F(EnquiriesTest, TellTheApprovalOfAnOrderAndOfAFlow) {
  const auto order = First("SELECT ORDERNO, count(*) FROM step GROUP BY ORDERNO ORDER BY 2 DESC");
  corvane::CorvaneStream trail = Ask("COMQRYAT", {{"ORDERNO", order[0]}});
  EXPECT_EQ(std::to_string(trail.getList("resultList").size()), order[1]);
  EXPECT_EQ(trail.getList("resultList")[0].getValue("STEPNO"), "1");
  EXPECT_EQ(RefusalOf("COMQRYAT", {{"ORDERNO", "none"}}), "none\r\nBK30017");

  corvane::CorvaneStream flow = Ask("COMQRYFW", {{"FLOWID", "F32001"}});
  EXPECT_EQ(flow.getValue("AUDITTOTAL"), "2");
  for (const char* level : {"PSTLEVEL0", "PSTLEVEL1", "PSTLEVEL2"}) {
    corvane::List& list = flow.getList(level);
    EXPECT_GE(list.size(), 2u) << level;
    EXPECT_FALSE(list.getAttribute("PSTNM").empty()) << level;
    EXPECT_TRUE(list[0].hasField("CSTNMCN")) << level;
  }
  EXPECT_EQ(RefusalOf("COMQRYFW", {{"FLOWID", "none"}}), "none\r\nBK30017");
}

}  // namespace
}  // namespace demohost
