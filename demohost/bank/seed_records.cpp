#include "demohost/bank/seed_tables.h"

#include <algorithm>

#include "demohost/bank/names.h"
#include "demohost/bank/seed_tools.h"

namespace demohost {
namespace {

using std::chrono::days;

struct Account {
  std::string number;
  std::string name;
  std::string customer;
  std::vector<std::string> institutions;
};

struct Party {
  std::string name;
  std::string account;
};

struct Branch {
  std::string number;
  std::string name;
  std::string address;
};

// Makes the bank's records one after the other; every choice comes from one sequence of numbers.
class Filler {
 public:
  Filler(Database& database, const BankPlan& plan) : database_(database), plan_(plan), random_(20310066u) {}

  void Run() {
    FillCodes();
    FillBanks();
    FillAccounts();
    FillBills();
  }

 private:
  void FillCodes();
  void FillBanks();
  void FillAccounts();
  void FillBills();
  void AddBill(Insert& bills, std::int64_t id);
  void AddApplication(Insert& applications, std::int64_t id);
  void AddEvent(Insert& events, std::int64_t id);

  std::string Code(const std::string& dictionary, std::int64_t record) {
    return SeedCode(plan_, dictionary, record, random_);
  }
  Day Back(std::uint32_t maxDays) { return plan_.today - days(random_.Below(maxDays + 1)); }
  Party Firm();
  std::string Person() { return SeedPerson(random_); }
  std::string Operator() { return Digits("%05lld", 1000 + random_.Below(40)) + " " + Person(); }

  Database& database_;
  const BankPlan& plan_;
  Random random_;
  std::vector<Account> accounts_;
  std::vector<Branch> branches_;
  std::vector<Branch> accepting_;
};

Party Filler::Firm() {
  const names::City& city = random_.Pick(names::Cities());
  const std::string_view kind = random_.Chance(70) ? "有限公司" : "股份有限公司";
  return {Join({city.name, random_.Pick(names::FirmWords()), random_.Pick(names::Trades()), kind}),
          Digits("%06lld", 310000 + random_.Below(600000)) + Digits("%09lld", random_.Below(1000000000))};
}

void Filler::FillCodes() {
  Insert insert(database_, "code", 2);
  for (const auto& [dictionary, codes] : plan_.codes) {
    for (const std::string& code : codes) insert(dictionary, code);
  }
}

void Filler::FillBanks() {
  Insert banks(database_, "bank", 2);
  Insert institutions(database_, "institution", 2);
  for (const names::City& city : names::Cities()) {
    const Branch own{names::InterbankNumber(names::kOwnBankType, city.area, 1),
                     Join({names::kOwnBankName, city.name, "分行票据中心"}),
                     {}};
    branches_.push_back(own);
    banks(own.number, own.name);
    institutions(own.number, own.name);
    for (const names::AcceptingBank& bank : names::AcceptingBanks()) {
      const unsigned serial = 1 + random_.Below(900);
      const Branch branch{names::InterbankNumber(bank.type, city.area, serial),
                          Join({bank.name, city.name, "分行"}),
                          Join({city.name, "市", random_.Pick(names::Districts())})};
      accepting_.push_back(branch);
      banks(branch.number, branch.name);
    }
  }
}

void Filler::FillAccounts() {
  Insert accounts(database_, "account", 4);
  Insert custody(database_, "custody", 2);
  std::vector<std::string> firms;
  while (firms.size() < 9) firms.push_back(Firm().name);
  for (int position = 0; position < kAccountCount; ++position) {
    const int firm = position / 5;
    Account account{Digits("9010%05lld", 21000 + firm * 137) + Digits("%09lld", 300000100 + position * 7919),
                    firms[static_cast<std::size_t>(firm)],
                    Digits("C%09lld", 10000310 + firm),
                    {}};
    accounts(account.number, account.name, account.customer, std::int64_t{position});
    // The last account has no institution yet, every fourth has one, the others have two or three.
    // Institutions are dealt out in turn, so that each of them keeps bills.
    const bool last = position == kAccountCount - 1;
    const int count = last ? 0 : position % 4 == 0 ? 1 : 2 + position % 2;
    for (int turn = 0; turn < count; ++turn) {
      const auto branch = static_cast<std::size_t>((position + turn * 11) % kInstitutionCount);
      account.institutions.push_back(branches_[branch].number);
      custody(account.number, branches_[branch].number);
    }
    if (!last) accounts_.push_back(account);
  }
}

void Filler::FillBills() {
  Insert bills(database_, "bill", 36);
  Insert applications(database_, "application", 19);
  Insert events(database_, "event", 16);
  for (std::int64_t id = 0; id < plan_.bills; ++id) {
    AddBill(bills, id);
    if (id % 4 == 0) AddApplication(applications, id / 4);
    if (id % 2 == 0) AddEvent(events, id / 2);
  }
}

void Filler::AddBill(Insert& bills, std::int64_t id) {
  const Account& account = accounts_[static_cast<std::size_t>(id) % accounts_.size()];
  std::string type = Code("BILLTYPE", id);
  const bool byBank = type == "AC01";
  // Of a few bills the bank has not entered the type.
  if (!byBank && id % 50 == 43) type.clear();
  const std::uint32_t age = random_.Below(360);
  const Day issued = plan_.today - days(age);
  const Day due = issued + days(random_.Chance(60) ? 180 : random_.Chance(50) ? 90 : 365);
  const Day saved = issued + days(random_.Below(std::min<std::uint32_t>(age, 60) + 1));
  // One bill in twenty has no bill ID, and one in ten of these no enquiry number either.
  const bool hasBillId = id % 20 != 7;
  const bool hasEnquiry = hasBillId ? random_.Chance(50) : id % 200 != 7;
  const std::string_view currency = random_.Chance(86)   ? "CNY"
                                    : random_.Chance(50) ? "USD"
                                    : random_.Chance(50) ? "EUR"
                                                         : "HKD";
  // Amounts from a thousand to some forty million; every third is a round one.
  std::int64_t cents = (std::int64_t{1000} + random_.Below(9000)) * 100;
  for (std::uint32_t power = random_.Below(4); power > 0; --power) cents *= 1 + random_.Below(16);
  cents += random_.Chance(33) ? 0 : random_.Below(10000);
  const Party drawer = Firm();
  const Party payee = Firm();
  const Party payer = byBank ? Party{} : Firm();
  const Branch& payeeBank = random_.Pick(accepting_);
  const Branch& payerBank = random_.Pick(accepting_);
  const bool endorsed = random_.Chance(65);
  const bool collected = random_.Chance(70);
  const std::string yes = Code("YESORNO", 1);
  const std::string no = Code("YESORNO", 0);
  bills(id + 1, account.number, random_.Pick(account.institutions),
        "3" + Digits("%07lld", 131000 + id % 977) + Digits("%08lld", 20000000 + id),
        hasBillId ? Digits("%lld", 10000000 + id) : std::string(),
        hasEnquiry ? Digits("QN%010lld", 4400000 + id) : std::string(), type,
        Join({"PC", DayText(saved)}) + Digits("%04lld", id % std::ssize(account.number) + id % 37),
        Code("AGENTSTT", id), currency, cents, DayText(issued), DayText(due), DayText(saved), drawer.name,
        drawer.account, payee.name, payeeBank.name, payee.account, payer.name, payer.account,
        byBank ? payerBank.number : std::string(), byBank ? payerBank.name : std::string(),
        byBank ? payerBank.address : std::string(), byBank ? std::string() : payerBank.number,
        byBank ? std::string() : payerBank.name, byBank ? std::string() : payerBank.address,
        endorsed ? Firm().name : std::string(),
        endorsed ? Digits("%lld", 1 + random_.Below(9)) : std::string(), random_.Chance(20) ? yes : no,
        collected ? yes : no, collected ? account.number : std::string(), random_.Chance(40) ? yes : no,
        random_.Pick(names::CustomerRemarks()), random_.Pick(names::BankRemarks()), Code("BANKRMK", id));
}

void Filler::AddApplication(Insert& applications, std::int64_t id) {
  const Day applied = Back(300);
  const bool decided = random_.Chance(75);
  const bool collecting = random_.Chance(30);
  applications(id + 1, id * 4 + 1, Join({"AP", DayText(applied)}) + Digits("%08lld", id + 1),
               Code("LOANRESULT", id), Code("LOANTYPEAPP", id), DayText(applied), DayText(applied),
               Operator(), DayText(applied + days(1)), Operator(), random_.Pick(branches_).number,
               decided ? DayText(applied + days(2)) : std::string(), decided ? Operator() : std::string(),
               collecting ? Person() : std::string(), collecting ? std::string("居民身份证") : std::string(),
               collecting ? Digits("9999%014lld", 19800101000000 + id) : std::string(), Code("TRANSMK", id),
               random_.Pick(names::CustomerRemarks()), random_.Pick(names::BankRemarks()));
}

void Filler::AddEvent(Insert& events, std::int64_t id) {
  const Day day = Back(300);
  const bool collecting = random_.Chance(20);
  events(id + 1, id * 2 + 1, Code("BUSITYPE", id), Join({"LS", DayText(day)}) + Digits("%08lld", id + 1),
         DayText(day), DayText(day), Operator(), DayText(day), Operator(), random_.Pick(branches_).number,
         DayText(day + days(1)), Operator(), collecting ? Person() : std::string(),
         collecting ? std::string("护照") : std::string(),
         collecting ? Digits("P%08lld", 77000000 + id) : std::string(), Code("TRANSMK", id));
}

}  // namespace

void FillBank(Database& database, const BankPlan& plan) {
  Filler(database, plan).Run();
}

}  // namespace demohost
