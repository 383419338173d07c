#include "demohost/bank/orders.h"

#include "demohost/bank/amount.h"
#include "demohost/bank/conditions.h"
#include "demohost/bank/messages.h"
#include "demohost/refusals.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

// States of an order.
constexpr const char* kDrafted = "0";
constexpr const char* kWaiting = "2";
constexpr const char* kBooked = "4";
constexpr const char* kCancelled = "9";
constexpr const char* kOpen = "10";

// The reasons of the bank for an order that it didn't cancel.
constexpr const char* kWrongState = "RS60001";
constexpr const char* kOffHours = "RS60004";

std::vector<Fields> RowsOf(const corvane::CorvaneStream& request) {
  std::vector<Fields> rows;
  for (const corvane::Row& row : request.getList("userDataList")) rows.push_back(FieldsOf(row));
  if (rows.empty()) throw Refused(refusal::kMissingField, "userDataList");
  return rows;
}

// The order's row with these columns, stepped to.
Statement FindOrder(Database& database, const std::string& columns, const std::string& number) {
  Statement order = database.Prepare("SELECT " + columns + " FROM orders WHERE ORDERNO = ?");
  order.Bind(1, number);
  if (!order.Step()) throw Refused(refusal::kUnknownRecord, number);
  return order;
}

void SetState(Database& database, const std::string& number, std::string_view state) {
  Statement update = database.Prepare("UPDATE orders SET STT = ? WHERE ORDERNO = ?");
  update.Bind(1, state);
  update.Bind(2, number);
  update.Step();
}

// Count and sum of orders.
struct Total {
  int count = 0;
  std::int64_t cents = 0;
  void Add(std::int64_t amount) {
    ++count;
    cents += amount;
  }
};

// Why an order can't be cancelled; empty where it can.
std::string CancelObstacle(const Statement& order, Day today) {
  const std::string_view state = order.Text(0);
  if (state == kDrafted || state == kWaiting) return {};
  if (state != kBooked) return kWrongState;
  std::string booked(order.Text(1));
  std::erase(booked, '-');
  return booked > DayText(today) ? std::string() : kOffHours;
}

std::int64_t CheckedAmount(const Fields& fields, const char* name) {
  const auto cents = CentsOf(Required(fields, name));
  if (!cents) throw Refused(refusal::kBadAmount, name);
  return *cents;
}

// A cancellation's head. Its sum is that of the list's amount column, which need not be that of the rows'
// TRNAMT; so it is only read.
void CheckCancelHead(const Fields& head, std::size_t rows) {
  const std::string& business = Required(head, "BSNCODE");
  if (FindBusiness(business) == nullptr) throw Refused(refusal::kUnknownBusiness, business);
  CheckedAmount(head, "TOTALTRAM");
  if (Required(head, "TRNSUM") != std::to_string(rows)) throw Refused(refusal::kBadRequest, "TRNSUM");
}

}  // namespace

corvane::CorvaneStream SynchronizeStates(Database& database, const corvane::CorvaneStream& request) {
  corvane::List list = EmptyResult();
  Transaction transaction(database);
  for (const Fields& row : RowsOf(request)) {
    const std::string& number = Required(row, "ORDERNO");
    std::string state;
    {
      Statement order = FindOrder(database, "STT, FINAL", number);
      const bool open = order.Text(0).empty() || order.Text(0) == kOpen;
      state = order.Text(open ? 1 : 0);
    }
    SetState(database, number, state);
    list.addRow(RowOf({{"RECORDID", Required(row, "RECORDID")}, {"STT", state}}));
  }
  transaction.Commit();
  return Answer(list);
}

corvane::CorvaneStream FailureReasons(Database& database, const corvane::CorvaneStream& request) {
  corvane::List list = EmptyResult();
  for (const Fields& row : RowsOf(request)) {
    const Statement order = FindOrder(database, "ERRCODE, ERRINF", Required(row, "ORDERNO"));
    list.addRow(RowOf({{"RECORDID", Required(row, "RECORDID")},
                       {"ERRCODE", std::string(order.Text(0))},
                       {"ERRINF", std::string(order.Text(1))}}));
  }
  return Answer(list);
}

corvane::CorvaneStream CancelOrders(Database& database, const corvane::CorvaneStream& request, Day today) {
  const Fields head = FieldsOf(request);
  const std::vector<Fields> rows = RowsOf(request);
  CheckCancelHead(head, rows.size());
  corvane::List failed = EmptyResult();
  Total done, left;
  Transaction transaction(database);
  for (const Fields& row : rows) {
    const std::string& number = Required(row, "ORDERNO");
    const std::int64_t cents = CheckedAmount(row, "TRNAMT");
    std::string obstacle;
    {
      const Statement order = FindOrder(database, "STT, PREDATE", number);
      obstacle = CancelObstacle(order, today);
    }
    if (obstacle.empty()) {
      SetState(database, number, kCancelled);
      done.Add(cents);
    } else {
      left.Add(cents);
      failed.addRow(RowOf({{"ID", Required(row, "ID")}, {"FLAG", obstacle}}));
    }
  }
  transaction.Commit();
  corvane::CorvaneStream answer = Answer(failed);
  answer.addFields(RowOf({{"SUCTOTALNUM", std::to_string(done.count)},
                          {"SUCTOTALMONEY", AmountText(done.cents)},
                          {"ERRTOTALNUM", std::to_string(left.count)},
                          {"ERRTOTALMONEY", AmountText(left.cents)}}));
  return answer;
}

corvane::CorvaneStream AuditTrail(Database& database, const corvane::CorvaneStream& request) {
  const Fields fields = FieldsOf(request);
  const std::string& number = Required(fields, "ORDERNO");
  FindOrder(database, "STT", number);
  Statement steps = database.Prepare(
      "SELECT STEPNO, OPRNO, OPRNM, CHKDATE, CHKTIME, AGREE, AGREEREM "
      "FROM step WHERE ORDERNO = ? ORDER BY STEPNO");
  steps.Bind(1, number);
  return Answer(ResultList(steps));
}

corvane::CorvaneStream ApprovalFlow(Database& database, const corvane::CorvaneStream& request) {
  const Fields fields = FieldsOf(request);
  const std::string& flow = Required(fields, "FLOWID");
  Statement head = database.Prepare("SELECT BSNNM, LEVELS FROM flow WHERE FLOWID = ?");
  head.Bind(1, flow);
  if (!head.Step()) throw Refused(refusal::kUnknownRecord, flow);
  corvane::CorvaneStream answer = EmptyAnswer();
  answer.addFields(RowOf({{"BSNNM", std::string(head.Text(0))}, {"AUDITTOTAL", std::string(head.Text(1))}}));
  for (std::int64_t level = 0; level <= head.Number(1); ++level) {
    Statement operators = database.Prepare(
        "SELECT OPRNO, OPRNM, CSTNMCN, PSTNM FROM approver WHERE FLOWID = ? AND LEVEL = ? ORDER BY OPRNO");
    operators.Bind(1, flow);
    operators.Bind(2, level);
    corvane::List list;
    list.setAttribute("name", "PSTLEVEL" + std::to_string(level));
    while (operators.Step()) {
      list.setAttribute("PSTNM", norvik::AnsiFromUtf8(std::string(operators.Text(3))));
      list.addRow(RowOf({{"OPRNO", std::string(operators.Text(0))},
                         {"OPRNM", std::string(operators.Text(1))},
                         {"CSTNMCN", std::string(operators.Text(2))}}));
    }
    answer.addList(list);
  }
  return answer;
}

}  // namespace demohost
