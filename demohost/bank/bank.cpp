#include "demohost/bank/bank.h"

#include "demohost/bank/enquiries.h"
#include "demohost/bank/messages.h"
#include "demohost/bank/orders.h"
#include "demohost/refusals.h"
#include "demohost/words.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

// A row of a request's account list names this many accounts at most.
constexpr std::size_t kAccountsInRow = 20;

// The source whose institutions an account is asked for: custody, the only one that this bank has.
constexpr std::string_view kCustodySource = "1";

}  // namespace

Bank::Bank(Database database, Day today) : database_(std::move(database)), today_(today) {
  for (const BankAccount& account : Accounts()) accounts_.insert(account.number);
  Statement codes = database_.Prepare("SELECT DICTIONARY, CODE FROM code");
  while (codes.Step()) codes_.emplace(codes.Text(0), codes.Text(1));
}

const std::map<std::string, Bank::Handler>& Bank::Handlers() {
  static const std::map<std::string, Handler> kHandlers = {
      {"EBBADQDB", std::mem_fn(&Bank::QueryRecords)},
      {"EBBADQAH", std::mem_fn(&Bank::QueryInstitutions)},
      {"EBBADEHQ", [](Bank& bank, auto& request) { return EcdsHistory(bank.database_, request); }},
      {"EBBADERQ", [](Bank& bank, auto& request) { return EcdsRegistration(bank.database_, request); }},
      {"EBBADHHQ", [](Bank& bank, auto& request) { return LargeValueResult(bank.database_, request); }},
      {"COMSTTKP", [](Bank& bank, auto& request) { return SynchronizeStates(bank.database_, request); }},
      {"COMREASON", [](Bank& bank, auto& request) { return FailureReasons(bank.database_, request); }},
      {"EBBCMCOQ",
       [](Bank& bank, auto& request) { return CancelOrders(bank.database_, request, bank.today_); }},
      {"COMQRYAT", [](Bank& bank, auto& request) { return AuditTrail(bank.database_, request); }},
      {"COMQRYFW", [](Bank& bank, auto& request) { return ApprovalFlow(bank.database_, request); }},
  };
  return kHandlers;
}

std::string Bank::Exchange(const std::string& transaction, const std::string& request) {
  const auto handler = Handlers().find(transaction);
  if (handler == Handlers().end())
    throw Refused(refusal::kUnknownTransaction, norvik::Utf8FromAnsi(transaction));
  corvane::CorvaneStream stream;
  try {
    stream.fromString(request);
  } catch (const corvane::TException&) {
    throw Refused(refusal::kBadRequest);
  }
  try {
    return handler->second(*this, stream).toString();
  } catch (const DatabaseError& error) {
    throw Refused(refusal::kBankFailure, error.what());
  }
}

std::vector<BankAccount> Bank::Accounts() {
  std::vector<BankAccount> accounts;
  Statement statement = database_.Prepare("SELECT ACCNO, ACCNM FROM account ORDER BY POSITION");
  while (statement.Step())
    accounts.push_back({std::string(statement.Text(0)), std::string(statement.Text(1))});
  return accounts;
}

bool Bank::IsCode(std::string_view dictionary, std::string_view code) const {
  return codes_.count({std::string(dictionary), std::string(code)}) != 0;
}

std::vector<std::string> Bank::RequestedAccounts(const corvane::CorvaneStream& request,
                                                 const std::string& list) {
  std::vector<std::string> accounts;
  for (const corvane::Row& row : request.getList(list)) {
    const std::vector<std::string> group = Split(norvik::Utf8FromAnsi(row.getValue("CUSTACC")), '|');
    if (group.size() > kAccountsInRow) throw Refused(refusal::kTooManyAccounts);
    for (const std::string& account : group) {
      if (accounts_.count(account) == 0) throw Refused(refusal::kUnknownAccount, account);
      accounts.push_back(account);
    }
  }
  if (accounts.empty()) throw Refused(refusal::kNoAccount);
  return accounts;
}

corvane::CorvaneStream Bank::QueryRecords(const corvane::CorvaneStream& request) {
  const Fields fields = FieldsOf(request);
  const std::string& code = Required(fields, "BSNCODE");
  const Business* business = FindBusiness(code);
  if (business == nullptr) throw Refused(refusal::kUnknownBusiness, code);
  const std::vector<std::string> accounts = RequestedAccounts(request, "resultList");
  Where where = BuildWhere(*business, fields,
                           [this](auto dictionary, auto value) { return IsCode(dictionary, value); });
  AddOneOf(where, "b.CUSTACC", accounts);
  Statement statement =
      database_.Prepare("SELECT " + business->columns + " FROM " + business->tables + " WHERE 1" + where.sql +
                        " ORDER BY " + std::string(business->order));
  BindValues(statement, where);
  return Answer(ResultList(statement));
}

corvane::CorvaneStream Bank::QueryInstitutions(const corvane::CorvaneStream& request) {
  if (Required(FieldsOf(request), "SRC") != kCustodySource) throw Refused(refusal::kUnknownCode, "SRC");
  const std::vector<std::string> accounts = RequestedAccounts(request, "userDataList");
  Where where;
  AddOneOf(where, "ACCNO", accounts);
  Statement statement =
      database_.Prepare("SELECT DISTINCT AGTBHNM FROM custody WHERE 1" + where.sql + " ORDER BY AGTBHNM");
  BindValues(statement, where);
  return Answer(ResultList(statement));
}

}  // namespace demohost
