#include "demohost/bank/bank.h"

#include <gtest/gtest.h>

#include "demohost/bank/amount.h"
#include "demohost/refusals.h"
#include "platform/code_page.h"
#include "tests/demohost/folder.h"
#include "tests/demohost/test_plan.h"

namespace demohost {
namespace {

constexpr const char* kFields[] = {"AGTBHNM", "BILLNUM", "BILLSID", "BILLTYP", "BATCHNO", "PTENDNM",
                                   "ACCPNAM", "AGTSTAT", "BKRMKTY", "DUEDATS", "DUEDATE", "AMTBEGN",
                                   "AMTENDS", "APLYDTS", "APLYDTE", "SAVEDTS", "SAVEDTE", "HASIMPN",
                                   "APPLYNO", "APPTYPE", "DSBKBNM", "APPREST", "BSNFLOW"};

class BankTest : public testing::Test {
 protected:
  BankTest()
      : database_(OpenBank(folder_ / "bank.sqlite", TestPlan(500))),
        bank_(OpenBank(folder_ / "bank.sqlite", TestPlan(500)), *DayOf("20260615")) {
    for (const BankAccount& account : bank_.Accounts()) accounts_.push_back(account.number);
  }

  // All accounts, as the screens group them.
  std::vector<std::string> Groups() const {
    std::vector<std::string> groups;
    for (std::size_t at = 0; at < accounts_.size(); ++at) {
      if (at % 20 == 0) groups.emplace_back();
      groups.back() += (at % 20 == 0 ? "" : "|") + accounts_[at];
    }
    return groups;
  }

  std::string Request(const std::string& business, const Fields& set,
                      const std::vector<std::string>& groups) const {
    corvane::CorvaneStream request;
    corvane::List list;
    list.setAttribute("name", "resultList");
    for (const std::string& group : groups) {
      corvane::Row row;
      row["CUSTACC"] = group;
      list.addRow(row);
    }
    request.addList(list);
    request.addField(corvane::Field("BSNCODE", business));
    for (const char* field : kFields) request.addField(corvane::Field(field, ""));
    for (const auto& [field, value] : set)
      request.addField(corvane::Field(field, norvik::AnsiFromUtf8(value)));
    return request.toString();
  }

  corvane::List Query(const std::string& business, const Fields& set) {
    corvane::CorvaneStream answer(bank_.Exchange("EBBADQDB", Request(business, set, Groups())));
    EXPECT_EQ(answer.getValue("TOTALNM"), std::to_string(answer.getList("resultList").size()));
    return answer.getList("resultList");
  }

  std::string RefusalOf(const std::string& code, const std::string& request) {
    try {
      bank_.Exchange(code, request);
    } catch (const Refused& refused) {
      return refused.Lines();
    }
    return "answered";
  }

  std::int64_t Count(const std::string& where, const std::string& tables = "bill b") {
    Statement statement = database_.Prepare("SELECT count(*) FROM " + tables + " WHERE " + where);
    statement.Step();
    return statement.Number(0);
  }

  Folder folder_;
  Database database_;
  Bank bank_;
  std::vector<std::string> accounts_;
};

TEST_F(BankTest, HonoursEveryConditionOfABillQuery) {
  Statement sample = database_.Prepare(
      "SELECT BILLNUM, BILLSID, BATCHNO, AGTBHNM, ACPNM, substr(PTENDNM, 2, 3), substr(ACPNAM, 1, 2) "
      "FROM bill WHERE BILLTYP = 'AC01' AND PTENDNM <> '' AND BILLSID <> ''");
  ASSERT_TRUE(sample.Step());
  const auto text = [&sample](int column) { return std::string(sample.Text(column)); };
  const struct {
    Fields fields;
    std::string where;
  } cases[] = {
      {{}, "1"},
      {{{"BILLTYP", "AC00"}}, "1"},
      {{{"BILLTYP", "AC02"}}, "BILLTYP = 'AC02'"},
      {{{"BILLNUM", text(0)}}, "BILLNUM = '" + text(0) + "'"},
      {{{"BILLSID", text(1)}}, "BILLSID = '" + text(1) + "'"},
      {{{"BATCHNO", text(2)}}, "BATCHNO = '" + text(2) + "'"},
      {{{"AGTBHNM", text(3)}}, "AGTBHNM = '" + text(3) + "'"},
      {{{"DSBKBNM", text(4)}}, "ACPNM = '" + text(4) + "' OR ACCPBNM = '" + text(4) + "'"},
      {{{"PTENDNM", text(5)}}, "PTENDNM LIKE '%" + text(5) + "%'"},
      {{{"PTENDNM", "%"}}, "0"},
      {{{"PTENDNM", "' OR 1 --"}}, "0"},
      {{{"ACCPNAM", text(6)}}, "ACPNAM LIKE '%" + text(6) + "%' OR ACCPNAM LIKE '%" + text(6) + "%'"},
      {{{"AGTSTAT", "02"}}, "AGTSTAT = '02'"},
      {{{"AGTSTAT", "02|D0"}}, "AGTSTAT IN ('02', 'D0')"},
      {{{"BKRMKTY", "02"}}, "BKRMKTY = '02'"},
      {{{"HASIMPN", "1"}}, "HASIMPN = '1'"},
      {{{"DUEDATS", "20260615"}}, "DUEDATE >= '20260615'"},
      {{{"DUEDATE", "20260615"}}, "DUEDATE <= '20260615'"},
      {{{"SAVEDTS", "20260601"}, {"SAVEDTE", "20260610"}}, "SAVEDAT BETWEEN '20260601' AND '20260610'"},
      {{{"AMTBEGN", "50000"}, {"AMTENDS", "70000.50"}}, "CENTS BETWEEN 5000000 AND 7000050"},
      {{{"BILLTYP", "AC01"}, {"AGTSTAT", "02"}, {"AMTBEGN", "50000.0"}},
       "BILLTYP = 'AC01' AND AGTSTAT = '02' AND CENTS >= 5000000"},
  };
  for (const auto& [fields, where] : cases)
    EXPECT_EQ(Query("CB200310", fields).size(), Count(where)) << where;
}

TEST_F(BankTest, HonoursTheConditionsOfApplicationsAndEvents) {
  const std::string applications = "application x JOIN bill b ON b.ID = x.BILL";
  const std::string events = "event x JOIN bill b ON b.ID = x.BILL";
  const struct {
    const char* business;
    Fields fields;
    std::string tables, where;
  } cases[] = {
      {"CB200320", {}, applications, "1"},
      {"CB200320", {{"APPTYPE", "02"}, {"APPREST", "01"}}, applications, "APPTYPE = '02' AND APPREST = '01'"},
      {"CB200320",
       {{"APLYDTS", "20260101"}, {"APLYDTE", "20260630"}},
       applications,
       "APPDATE BETWEEN '20260101' AND '20260630'"},
      {"CB200320", {{"BILLTYP", "AC02"}}, applications, "BILLTYP = 'AC02'"},
      {"CB200330", {}, events, "1"},
      {"CB200330",
       {{"APPTYPE", "01"}, {"APLYDTS", "20260601"}, {"APLYDTE", "20260601"}},
       events,
       "APPTYPE = '01' AND BSNDAT = '20260601'"},
  };
  for (const auto& [business, fields, tables, where] : cases) {
    EXPECT_EQ(Query(business, fields).size(), Count(where, tables)) << business << " " << where;
  }
  const std::string number = Query("CB200320", {})[3].getValue("APPLYNO");
  EXPECT_EQ(Query("CB200320", {{"APPLYNO", number}}).size(), 1u);
  const std::string flow = Query("CB200330", {})[3].getValue("BSNFLWNO");
  EXPECT_EQ(Query("CB200330", {{"BSNFLOW", flow}}).size(), 1u);
}

TEST_F(BankTest, AnswersForTheAccountsAskedForAlone) {
  const auto ask = [this](const std::vector<std::string>& groups) {
    corvane::CorvaneStream answer(bank_.Exchange("EBBADQDB", Request("CB200310", {}, groups)));
    return static_cast<std::int64_t>(answer.getList("resultList").size());
  };
  EXPECT_EQ(ask({accounts_[0]}), Count("CUSTACC = '" + accounts_[0] + "'"));
  EXPECT_EQ(ask({accounts_[0] + "|" + accounts_[1], accounts_[2]}),
            Count("CUSTACC IN ('" + accounts_[0] + "','" + accounts_[1] + "','" + accounts_[2] + "')"));
  EXPECT_EQ(ask({accounts_.back()}), 0);
}

TEST_F(BankTest, RefusesAWrongRequestByKeyAndPlace) {
  const auto query = [this](const Fields& fields, const char* business = "CB200310") {
    return RefusalOf("EBBADQDB", Request(business, fields, Groups()));
  };
  EXPECT_EQ(RefusalOf("EBBADXXX", Request("CB200310", {}, Groups())), "EBBADXXX\r\nBK30001");
  EXPECT_EQ(RefusalOf("EBBADQDB", "<stream><A>"), "BK30002");
  EXPECT_EQ(RefusalOf("EBBADQDB", ""), "BK30002");
  EXPECT_EQ(RefusalOf("EBBADQDB", "<stream/>"), "BSNCODE\r\nBK30003");
  EXPECT_EQ(query({}, "CB999999"), "CB999999\r\nBK30004");
  EXPECT_EQ(RefusalOf("EBBADQDB", Request("CB200310", {}, {})), "BK30007");
  EXPECT_EQ(RefusalOf("EBBADQDB", Request("CB200310", {}, {"123"})), "123\r\nBK30009");
  EXPECT_EQ(RefusalOf("EBBADQDB", Request("CB200310", {}, {accounts_[0] + "|"})), "BK30009");
  std::string many = accounts_[0];
  for (int at = 1; at < 21; ++at) many += "|" + accounts_[static_cast<std::size_t>(at)];
  EXPECT_EQ(RefusalOf("EBBADQDB", Request("CB200310", {}, {many})), "BK30008");
  const struct {
    const char* business;
    Fields fields;
    const char* refusal;
  } cases[] = {
      {"CB200310", {{"DUEDATS", "20260230"}}, "DUEDATS\r\nBK30005"},
      {"CB200310", {{"SAVEDTE", "2026"}}, "SAVEDTE\r\nBK30005"},
      {"CB200310", {{"SAVEDTS", "20260611"}, {"SAVEDTE", "20260610"}}, "SAVEDTE\r\nBK30006"},
      {"CB200310", {{"AMTBEGN", "9"}, {"AMTENDS", "8.99"}}, "AMTENDS\r\nBK30006"},
      {"CB200310", {{"AMTBEGN", "1,000"}}, "AMTBEGN\r\nBK30011"},
      {"CB200310", {{"AMTENDS", "-1"}}, "AMTENDS\r\nBK30011"},
      {"CB200310", {{"BILLTYP", "AC99"}}, "BILLTYP\r\nBK30010"},
      {"CB200310", {{"AGTSTAT", "02||D0"}}, "AGTSTAT\r\nBK30010"},
      {"CB200310", {{"APPLYNO", "A"}}, "APPLYNO\r\nBK30012"},
      {"CB200310", {{"APLYDTS", "20260101"}}, "APLYDTS\r\nBK30012"},
      {"CB200320", {{"BSNFLOW", "1"}}, "BSNFLOW\r\nBK30012"},
      {"CB200320", {{"APLYDTS", "20260101"}, {"APLYDTE", "20260701"}}, "APLYDTE\r\nBK30013"},
      {"CB200330", {{"APLYDTS", "20260101"}}, "APLYDTE\r\nBK30014"},
      {"CB200330", {{"APLYDTE", "20260101"}}, "APLYDTS\r\nBK30014"},
      {"CB200320", {{"APLYDTS", "20260101"}, {"APLYDTE", "20260630"}}, "answered"},
  };
  for (const auto& [business, fields, refusal] : cases) {
    EXPECT_EQ(query(fields, business), refusal) << fields.begin()->first << "=" << fields.begin()->second;
  }
}

TEST_F(BankTest, NamesTheInstitutionsOfAnAccount) {
  const auto institutions = [this](const std::string& account) {
    const std::string request = "<stream><SRC>1</SRC><list name=\"userDataList\"><row><CUSTACC>" + account +
                                "</CUSTACC></row></list></stream>";
    corvane::CorvaneStream answer(bank_.Exchange("EBBADQAH", request));
    return answer.getList("resultList");
  };
  EXPECT_EQ(institutions(accounts_[0]).size(), 1u);
  EXPECT_EQ(institutions(accounts_[1]).size(), 3u);
  EXPECT_EQ(institutions(accounts_.back()).size(), 0u);
  const std::string number = institutions(accounts_[0])[0].getValue("AGTBHNM");
  EXPECT_EQ(Count("CUSTACC = '" + accounts_[0] + "' AND AGTBHNM <> '" + number + "'"), 0);
  EXPECT_EQ(RefusalOf("EBBADQAH", "<stream><SRC>1</SRC></stream>"), "BK30007");
  EXPECT_EQ(RefusalOf("EBBADQAH", "<stream/>"), "SRC\r\nBK30003");
  EXPECT_EQ(RefusalOf("EBBADQAH", "<stream><SRC>2</SRC></stream>"), "SRC\r\nBK30010");
}

TEST_F(BankTest, ReportsItsOwnFailure) {
  database_.Run("DROP TABLE custody");
  EXPECT_EQ(RefusalOf("EBBADQAH", "<stream><SRC>1</SRC><list name=\"userDataList\"><row><CUSTACC>" +
                                      accounts_[0] + "</CUSTACC></row></list></stream>"),
            "no such table: custody\r\nBK30016");
}

TEST(Amount, ReadsPlainAmountsAlone) {
  const struct {
    const char* text;
    std::int64_t cents;
  } good[] = {{"0", 0}, {"1", 100}, {"1.5", 150}, {"0.05", 5}, {"9999999999999.99", 999999999999999}};
  for (const auto& [text, cents] : good) EXPECT_EQ(CentsOf(text), cents) << text;
  for (const char* bad : {"", ".", "1.", ".5", "1.234", "1,000", "-1", "+1", "1e3", " 1", "10000000000000"}) {
    EXPECT_FALSE(CentsOf(bad)) << bad;
  }
}

}  // namespace
}  // namespace demohost
