// The bank's server as the secure communication meets it: the code of a transaction and a request in, an
// answer or a refusal out. It chooses who answers, and answers the two queries of the screens itself; the
// enquiries about one bill are in enquiries.h, the actions on orders in orders.h. Knows no module and no
// window.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "data/corvane.h"
#include "demohost/bank/conditions.h"
#include "demohost/bank/database.h"
#include "demohost/calendar.h"

namespace demohost {

/// One of the customer's accounts with the bank. UTF-8.
struct BankAccount {
  std::string number;
  std::string name;
};

/// The bank's server: answers requests from its database. To be used by one thread.
class Bank {
 public:
  /// Takes the database over; `today` is the bank's day.
  Bank(Database database, Day today);

  /// The answer stream to a request stream, both as text in the code page. Throws Refused where the bank
  /// turns the request down or fails itself.
  std::string Exchange(const std::string& transaction, const std::string& request);

  /// The customer's accounts in the bank's order.
  std::vector<BankAccount> Accounts();

 private:
  using Handler = std::function<corvane::CorvaneStream(Bank& bank, const corvane::CorvaneStream& request)>;
  static const std::map<std::string, Handler>& Handlers();

  corvane::CorvaneStream QueryRecords(const corvane::CorvaneStream& request);
  corvane::CorvaneStream QueryInstitutions(const corvane::CorvaneStream& request);

  std::vector<std::string> RequestedAccounts(const corvane::CorvaneStream& request, const std::string& list);
  bool IsCode(std::string_view dictionary, std::string_view code) const;

  Database database_;
  Day today_;
  std::set<std::string> accounts_;
  std::set<std::pair<std::string, std::string>> codes_;
};

}  // namespace demohost
