#include "demohost/bank/business.h"

#include <algorithm>
#include <array>

#include "demohost/bank/amount.h"

namespace demohost {
namespace {

using enum ConditionKind;

// The record fields of a bill and of its custody, which the rows of all businesses have.
const std::string kBillColumns =
    std::string("b.BILLNUM, b.BILLTYP, ") + kAmountSql +
    " AS PAYAMT, b.CRYTYPE, b.AGTSTAT, b.ISSDATE, b.DUEDATE, b.SAVEDAT, b.BATCHNO, b.BILLSID, "
    "b.CUSTACC, c.ACCNM AS CUSTNAM, c.CUSTNUM, b.AGTBHNM, i.AGTBNAM, "
    "b.DRWRNAM, b.DRWRACC, b.PYEENAM, b.PYEEBNA, b.PYEEACC, b.ACCPRNAM, b.ACCPRACC, "
    "b.ACCPBNM, b.ACCPNAM, b.ACPTADR, b.ACPNM, b.ACPNAM, b.ACPADR, "
    "b.PTENDNM, b.ENDRMNT, b.TENDFLG, b.AUTOCOL, b.RETMACC, b.HASIMPN, b.APLYRMK, b.CHEKRMK, b.QURYNUM";

// Who handled an application or an event, and who collects the bill. The caller finds the name of the
// accepting institution from its number.
constexpr const char* kHandlingColumns =
    ", x.DLDAT, x.DLOPR, x.CKDAT, x.CKOPR, x.BSNPUNO, '' AS BSNPUNM, x.CHCKDAT, x.BKCKOPR, x.GETPNAM, "
    "x.GETPTYP, x.GETPNUM, x.KZRFLAG";

constexpr const char* kBillTables =
    "bill b JOIN account c ON c.ACCNO = b.CUSTACC JOIN institution i ON i.AGTBHNM = b.AGTBHNM";

// The columns of the conditions that differ from business to business; empty where there is none.
struct OwnColumns {
  std::string_view date, application, type, typeDictionary, status, flow;
};

std::vector<Condition> Conditions(const OwnColumns& own) {
  return {
      {"AGTBHNM", kEqual, "b.AGTBHNM"},
      {"BILLNUM", kEqual, "b.BILLNUM"},
      {"BILLSID", kEqual, "b.BILLSID"},
      {"BILLTYP", kCode, "b.BILLTYP", "BILLTYPE"},
      {"BATCHNO", kEqual, "b.BATCHNO"},
      {"PTENDNM", kContains, "b.PTENDNM"},
      {"ACCPNAM", kContains, "b.ACCPNAM || b.ACPNAM"},
      {"AGTSTAT", kCodes, "b.AGTSTAT", "AGENTSTT"},
      {"BKRMKTY", kCode, "b.BKRMKTY", "BANKRMK"},
      {"DUEDATS", kDateFrom, "b.DUEDATE"},
      {"DUEDATE", kDateTo, "b.DUEDATE"},
      {"AMTBEGN", kAmountFrom, "b.CENTS"},
      {"AMTENDS", kAmountTo, "b.CENTS"},
      {"APLYDTS", kDateFrom, own.date},
      {"APLYDTE", kDateTo, own.date},
      {"SAVEDTS", kDateFrom, "b.SAVEDAT"},
      {"SAVEDTE", kDateTo, "b.SAVEDAT"},
      {"HASIMPN", kCode, "b.HASIMPN", "YESORNO"},
      {"APPLYNO", kEqual, own.application},
      {"APPTYPE", kCode, own.type, own.typeDictionary},
      {"DSBKBNM", kEqual, "b.ACCPBNM || b.ACPNM"},
      {"APPREST", kCode, own.status, "LOANRESULT"},
      {"BSNFLOW", kEqual, own.flow},
  };
}

}  // namespace

const Business* FindBusiness(std::string_view code) {
  static const std::array<Business, 3> kBusinesses = {{
      {"CB200310", kBillColumns, kBillTables, "b.ID", Conditions({}), {}, {}},
      {"CB200320",
       "x.APPLYNO, x.APPREST, x.APPTYPE, x.APPDATE, x.CUSTRMK, x.BANKRMK, "
       "o.ORDERNO, o.STT, o.LASTOPRNO, o.PREFLG, o.PREDATE, o.PRETIME, o.FLOWID, o.OPRNM, "
       "o.SMTDATE, o.SMTTIME, o.INMEMO, " +
           kBillColumns + kHandlingColumns,
       std::string(kBillTables) +
           " JOIN application x ON x.BILL = b.ID JOIN orders o ON o.APPLICATION = x.ID",
       "x.ID", Conditions({"x.APPDATE", "x.APPLYNO", "x.APPTYPE", "LOANTYPEAPP", "x.APPREST", {}}), "APLYDTS",
       "APLYDTE"},
      {"CB200330", "x.BSNFLWNO, x.APPTYPE, x.BSNDAT, " + kBillColumns + kHandlingColumns,
       std::string(kBillTables) + " JOIN event x ON x.BILL = b.ID", "x.ID",
       Conditions({"x.BSNDAT", {}, "x.APPTYPE", "BUSITYPE", {}, "x.BSNFLWNO"}), "APLYDTS", "APLYDTE"},
  }};
  const auto found = std::find_if(kBusinesses.begin(), kBusinesses.end(),
                                  [code](const Business& business) { return business.code == code; });
  return found == kBusinesses.end() ? nullptr : &*found;
}

}  // namespace demohost
