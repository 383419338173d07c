#include "demohost/bank/seed.h"

#include <algorithm>
#include <cstdio>

#include "demohost/bank/seed_tables.h"
#include "demohost/text_file.h"

namespace demohost {
namespace {

// Rises when the tables or what fills them change, so that banks made before are made anew.
constexpr int kSchemaVersion = 3;

// The empty tables. A column has the name of the record field that it holds. Texts stay texts
// ("TEXT"), so that leading zeros stay; only the amount is a number, in hundredths.
constexpr const char* kTables = R"sql(
CREATE TABLE code (DICTIONARY TEXT, CODE TEXT, PRIMARY KEY (DICTIONARY, CODE)) WITHOUT ROWID;
CREATE TABLE bank (NUMBER TEXT PRIMARY KEY, NAME TEXT) WITHOUT ROWID;
CREATE TABLE institution (AGTBHNM TEXT PRIMARY KEY, AGTBNAM TEXT) WITHOUT ROWID;
CREATE TABLE account (ACCNO TEXT PRIMARY KEY, ACCNM TEXT, CUSTNUM TEXT, POSITION INTEGER) WITHOUT ROWID;
CREATE TABLE custody (ACCNO TEXT, AGTBHNM TEXT, PRIMARY KEY (ACCNO, AGTBHNM)) WITHOUT ROWID;
CREATE TABLE bill (
  ID INTEGER PRIMARY KEY, CUSTACC TEXT, AGTBHNM TEXT, BILLNUM TEXT, BILLSID TEXT, QURYNUM TEXT, BILLTYP TEXT,
  BATCHNO TEXT, AGTSTAT TEXT, CRYTYPE TEXT, CENTS INTEGER, ISSDATE TEXT, DUEDATE TEXT, SAVEDAT TEXT,
  DRWRNAM TEXT, DRWRACC TEXT, PYEENAM TEXT, PYEEBNA TEXT, PYEEACC TEXT, ACCPRNAM TEXT, ACCPRACC TEXT,
  ACPNM TEXT, ACPNAM TEXT, ACPADR TEXT, ACCPBNM TEXT, ACCPNAM TEXT, ACPTADR TEXT, PTENDNM TEXT, ENDRMNT TEXT,
  HASIMPN TEXT, AUTOCOL TEXT, RETMACC TEXT, TENDFLG TEXT, APLYRMK TEXT, CHEKRMK TEXT, BKRMKTY TEXT);
CREATE TABLE application (
  ID INTEGER PRIMARY KEY, BILL INTEGER, APPLYNO TEXT, APPREST TEXT, APPTYPE TEXT, APPDATE TEXT, DLDAT TEXT,
  DLOPR TEXT, CKDAT TEXT, CKOPR TEXT, BSNPUNO TEXT, CHCKDAT TEXT, BKCKOPR TEXT, GETPNAM TEXT, GETPTYP TEXT,
  GETPNUM TEXT, KZRFLAG TEXT, CUSTRMK TEXT, BANKRMK TEXT);
CREATE TABLE event (
  ID INTEGER PRIMARY KEY, BILL INTEGER, APPTYPE TEXT, BSNFLWNO TEXT, BSNDAT TEXT, DLDAT TEXT, DLOPR TEXT,
  CKDAT TEXT, CKOPR TEXT, BSNPUNO TEXT, CHCKDAT TEXT, BKCKOPR TEXT, GETPNAM TEXT, GETPTYP TEXT, GETPNUM TEXT,
  KZRFLAG TEXT);
CREATE TABLE enquiry (
  ID INTEGER PRIMARY KEY, BILL INTEGER, SYSTEM TEXT, QURYDAT TEXT, QURYBNO TEXT, QURYBNM TEXT, QURYCNT TEXT,
  RPLYDAT TEXT, RPLYBNO TEXT, RPLYBNM TEXT, RPLYCNT TEXT, QURYRST TEXT);
CREATE TABLE registration (
  ID INTEGER PRIMARY KEY, BILL INTEGER, INFOTYP TEXT, REGIDAT TEXT, REGINAM TEXT, REGIBNO TEXT, REGIBNM TEXT,
  REGICNT TEXT);
CREATE TABLE orders (
  ORDERNO TEXT PRIMARY KEY, APPLICATION INTEGER, STT TEXT, FINAL TEXT, ERRCODE TEXT, ERRINF TEXT, OPRNM TEXT,
  LASTOPRNO TEXT, PREFLG TEXT, PREDATE TEXT, PRETIME TEXT, FLOWID TEXT, SMTDATE TEXT, SMTTIME TEXT, INMEMO TEXT)
  WITHOUT ROWID;
CREATE TABLE step (
  ORDERNO TEXT, STEPNO INTEGER, OPRNO TEXT, OPRNM TEXT, CHKDATE TEXT, CHKTIME TEXT, AGREE TEXT, AGREEREM TEXT,
  PRIMARY KEY (ORDERNO, STEPNO)) WITHOUT ROWID;
CREATE TABLE flow (FLOWID TEXT PRIMARY KEY, BSNNM TEXT, LEVELS INTEGER) WITHOUT ROWID;
CREATE TABLE approver (
  FLOWID TEXT, LEVEL INTEGER, PSTNM TEXT, OPRNO TEXT, OPRNM TEXT, CSTNMCN TEXT,
  PRIMARY KEY (FLOWID, LEVEL, OPRNO)) WITHOUT ROWID;
)sql";

// 31 bits that differ, as good as surely, from plan to plan (FNV-1a).
std::int32_t Fingerprint(const BankPlan& plan) {
  std::uint32_t hash = 2166136261u;
  const auto mix = [&hash](std::string_view text) {
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
    hash = (hash ^ 0xFFu) * 16777619u;
  };
  mix(std::to_string(kSchemaVersion));
  mix(std::to_string(plan.bills));
  mix(DayText(plan.today));
  for (const auto& [dictionary, codes] : plan.codes) {
    mix(dictionary);
    for (const std::string& code : codes) mix(code);
  }
  return static_cast<std::int32_t>(hash & 0x7FFFFFFFu) | 1;
}

bool IsMadeFrom(const std::filesystem::path& file, std::int32_t fingerprint) {
  if (!std::filesystem::exists(file)) return false;
  try {
    return Database(file, false).Version() == fingerprint;
  } catch (const DatabaseError&) {
    return false;
  }
}

void Make(const std::filesystem::path& file, const BankPlan& plan, std::int32_t fingerprint) {
  std::filesystem::remove(file);
  Database database(file, true);
  // A bank that is half made is thrown away, so nothing is lost by not waiting for the disk.
  database.Run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
  database.Run("BEGIN");
  database.Run(kTables);
  FillBank(database, plan);
  FillEnquiries(database, plan);
  FillOrders(database, plan);
  database.Run(
      "CREATE INDEX bill_account ON bill (CUSTACC);"
      "CREATE INDEX application_bill ON application (BILL);"
      "CREATE INDEX event_bill ON event (BILL);"
      "CREATE INDEX enquiry_bill ON enquiry (BILL);"
      "CREATE INDEX registration_bill ON registration (BILL);"
      "CREATE INDEX order_application ON orders (APPLICATION)");
  database.SetVersion(fingerprint);
  database.Run("COMMIT");
}

}  // namespace

Database OpenBank(const std::filesystem::path& file, const BankPlan& plan) {
  const std::int32_t fingerprint = Fingerprint(plan);
  if (!IsMadeFrom(file, fingerprint)) {
    std::filesystem::create_directories(file.parent_path());
    const std::filesystem::path beside = PlaceBeside(file);
    Make(beside, plan, fingerprint);
    std::filesystem::rename(beside, file);
  }
  return Database(file, false);
}

}  // namespace demohost
