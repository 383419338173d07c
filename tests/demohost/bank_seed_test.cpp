#include "demohost/bank/seed.h"

#include <gtest/gtest.h>

#include "tests/demohost/folder.h"
#include "tests/demohost/test_plan.h"

namespace demohost {
namespace {

std::int64_t Count(Database& bank, const std::string& sql) {
  Statement statement = bank.Prepare(sql);
  return statement.Step() ? statement.Number(0) : -1;
}

TEST(BankSeed, HoldsEveryKindOfBill) {
  const Folder folder;
  Database bank = OpenBank(folder / "data/bank.sqlite", TestPlan(2000));
  const struct {
    const char* sql;
    std::int64_t min, max;
  } cases[] = {
      {"SELECT count(*) FROM bill", 2000, 2000},
      {"SELECT count(DISTINCT BILLNUM) FROM bill", 2000, 2000},
      {"SELECT count(*) FROM account", 45, 45},
      {"SELECT count(*) FROM institution", 30, 30},
      {"SELECT count(DISTINCT CUSTACC) FROM bill", 44, 44},
      {"SELECT count(*) FROM bill WHERE BILLSID = '' AND QURYNUM = ''", 1, 100},
      {"SELECT count(*) FROM bill WHERE BILLSID = '' AND QURYNUM <> ''", 1, 200},
      {"SELECT count(*) FROM bill WHERE BILLTYP = 'AC01' AND (ACPNM = '' OR ACCPRNAM <> '')", 0, 0},
      {"SELECT count(*) FROM bill WHERE BILLTYP = 'AC02' AND (ACCPBNM = '' OR ACCPRNAM = '')", 0, 0},
      {"SELECT count(*) FROM bill WHERE SAVEDAT < ISSDATE OR SAVEDAT > '20260615' OR DUEDATE <= ISSDATE", 0,
       0},
      {"SELECT count(*) FROM bill WHERE CENTS <= 0 OR CENTS >= 1000000000000000", 0, 0},
      {"SELECT count(*) FROM bill WHERE length(BILLNUM) > 16 OR length(BILLSID) > 8 OR length(BATCHNO) > 20",
       0, 0},
      {"SELECT count(*) FROM bill b LEFT JOIN custody c ON c.ACCNO = b.CUSTACC AND c.AGTBHNM = b.AGTBHNM "
       "WHERE c.ACCNO IS NULL",
       0, 0},
      {"SELECT count(*) FROM application WHERE length(APPLYNO) > 18 OR BSNPUNO NOT IN (SELECT NUMBER FROM "
       "bank)",
       0, 0},
      {"SELECT count(*) FROM event WHERE length(BSNFLWNO) > 18 OR APPTYPE = '-9999'", 0, 0},
  };
  for (const auto& [sql, min, max] : cases) {
    const std::int64_t count = Count(bank, sql);
    EXPECT_TRUE(count >= min && count <= max)
        << sql << " finds " << count << ", expected " << min << " to " << max;
  }
}

TEST(BankSeed, IsTheSameFromTheSamePlanAndAnotherFromAnother) {
  const Folder folder;
  const auto sum = [](Database& bank) {
    return Count(bank, "SELECT sum(CENTS * ID) FROM bill") +
           Count(bank, "SELECT sum(length(DRWRNAM)) FROM bill");
  };
  Database one = OpenBank(folder / "one.sqlite", TestPlan(300));
  Database two = OpenBank(folder / "two.sqlite", TestPlan(300));
  EXPECT_EQ(sum(one), sum(two));

  // A second start keeps the file; another plan under the same name makes it anew.
  one.Run("UPDATE bill SET CENTS = 1");
  Database kept = OpenBank(folder / "one.sqlite", TestPlan(300));
  EXPECT_EQ(Count(kept, "SELECT max(CENTS) FROM bill"), 1);
  Database other = OpenBank(folder / "one.sqlite", TestPlan(301));
  EXPECT_EQ(Count(other, "SELECT count(*) FROM bill"), 301);
}

TEST(BankSeed, ReplacesAFileThatIsNoBank) {
  const Folder folder;
  Database bank = OpenBank(
      folder.Write("bank.sqlite", "not a database at all, but long enough to be looked at"), TestPlan(10));
  EXPECT_EQ(Count(bank, "SELECT count(*) FROM bill"), 10);
}

TEST(Transaction, IsUndoneWithoutCommit) {
  const Folder folder;
  Database bank = OpenBank(folder / "bank.sqlite", TestPlan(10));
  {
    Transaction transaction(bank);
    bank.Run("DELETE FROM bill");
  }
  EXPECT_EQ(Count(bank, "SELECT count(*) FROM bill"), 10);
  Transaction transaction(bank);
  bank.Run("DELETE FROM bill");
  transaction.Commit();
  EXPECT_EQ(Count(bank, "SELECT count(*) FROM bill"), 0);
}

}  // namespace
}  // namespace demohost
