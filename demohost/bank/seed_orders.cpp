#include "demohost/bank/seed_tables.h"

#include <array>

#include "demohost/bank/names.h"
#include "demohost/bank/seed_tools.h"

namespace demohost {
namespace {

using std::chrono::days;

struct Bank {
  std::string number, name;
};

std::vector<Bank> Banks(Database& database) {
  std::vector<Bank> banks;
  Statement statement = database.Prepare("SELECT NUMBER, NAME FROM bank ORDER BY NUMBER");
  while (statement.Step()) banks.push_back({std::string(statement.Text(0)), std::string(statement.Text(1))});
  return banks;
}

std::int64_t Count(Database& database, const char* table) {
  Statement statement = database.Prepare(std::string("SELECT count(*) FROM ") + table);
  return statement.Step() ? statement.Number(0) : 0;
}

constexpr std::string_view kQuestions[] = {"请核实票面要素及真伪", "该票是否已挂失止付", "请确认背书是否连续",
                                           "票据是否由贵行承兑"};
constexpr std::string_view kReplies[] = {"票面要素相符", "未挂失,未止付", "背书连续", "系我行承兑,真伪自辨"};
constexpr std::string_view kResults[] = {"相符", "不符", "待复"};

void AddEnquiry(Insert& enquiries, std::int64_t id, std::int64_t bill, std::string_view system,
                const BankPlan& plan, const std::vector<Bank>& banks, Random& random) {
  const Day asked = plan.today - days(5 + random.Below(200));
  const bool answered = random.Chance(80);
  const Bank& asking = random.Pick(banks);
  const Bank& replying = random.Pick(banks);
  const std::size_t subject = random.Below(4);
  enquiries(id, bill, system, DayText(asked), asking.number, asking.name, kQuestions[subject],
            answered ? DayText(asked + days(2)) : std::string(), replying.number, replying.name,
            answered ? kReplies[subject] : std::string_view(),
            answered ? kResults[random.Below(2)] : kResults[2]);
}

void AddRegistration(Insert& registrations, std::int64_t id, std::int64_t bill, const BankPlan& plan,
                     const std::vector<Bank>& banks, Random& random) {
  const Bank& bank = random.Pick(banks);
  const std::string kind = SeedCode(plan, "SIGNINFOTYPE", id - 1, random);
  registrations(id, bill, kind, DayText(plan.today - days(random.Below(300))), SeedPerson(random),
                bank.number, bank.name, random.Chance(50) ? std::string_view("已登记") : std::string_view());
}

// The people who approve, by flow and level.
struct Flow {
  std::string_view id, business;
  std::int64_t levels;
};
constexpr Flow kFlows[] = {
    {"F31001", "代保管票据查询", 0},
    {"F32001", "代保管电子申请", 2},
    {"F33001", "代保管业务明细", 1},
};
constexpr std::string_view kLevelNames[] = {"批量复核岗", "一级审批岗", "二级审批岗"};

void FillFlows(Database& database, Random& random) {
  Insert flows(database, "flow", 3);
  Insert approvers(database, "approver", 6);
  for (const Flow& flow : kFlows) {
    flows(flow.id, flow.business, flow.levels);
    for (std::int64_t level = 0; level <= flow.levels; ++level) {
      for (std::int64_t person = 0; person < 2 + level; ++person) {
        approvers(flow.id, level, kLevelNames[level], Digits("%06lld", 400 + level * 10 + person),
                  SeedPerson(random), std::string_view("演示集团有限公司"));
      }
    }
  }
}

// Why an order failed: a code of the bank's, words of its own, both or neither.
constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kFailures = {{
    {"RS60002", ""},
    {"", "承兑行系统维护,请稍后重试"},
    {"RS60003", "第3手背书签章不清"},
    {"", ""},
}};

void AddSteps(Insert& steps, const std::string& order, Day day, Random& random) {
  const std::int64_t count = random.Below(4);
  for (std::int64_t number = 1; number <= count; ++number) {
    const std::int64_t verdict = random.Below(8);
    steps(order, number, Digits("%06lld", 400 + random.Below(30)), SeedPerson(random),
          DayText(day + days(number)), Digits("%06lld", 93000 + random.Below(60)), std::to_string(verdict),
          verdict == 1 ? std::string_view("要素不全,请补充") : std::string_view());
  }
}

}  // namespace

void FillEnquiries(Database& database, const BankPlan& plan) {
  Random random(20310067u);
  const std::vector<Bank> banks = Banks(database);
  Insert enquiries(database, "enquiry", 12);
  Insert registrations(database, "registration", 8);
  std::int64_t enquiry = 0;
  std::int64_t registration = 0;
  const std::int64_t bills = Count(database, "bill");
  for (std::int64_t bill = 1; bill <= bills; ++bill) {
    // The numbers of one account's bills differ by an even number, so with odd divisors every account has
    // records.
    for (std::int64_t number = bill % 7; number > 0; --number) {
      AddEnquiry(enquiries, ++enquiry, bill, number % 2 == 0 ? "HVPS" : "ECDS", plan, banks, random);
    }
    for (std::int64_t number = bill % 5; number > 1; --number) {
      AddRegistration(registrations, ++registration, bill, plan, banks, random);
    }
  }
}

void FillOrders(Database& database, const BankPlan& plan) {
  Random random(20310068u);
  FillFlows(database, random);
  Insert orders(database, "orders", 15);
  Insert steps(database, "step", 8);
  const std::int64_t applications = Count(database, "application");
  for (std::int64_t application = 1; application <= applications; ++application) {
    const std::string number = Digits("OD%012lld", application);
    // States 0 to 15 in turn; every seventeenth order has none yet.
    const std::int64_t turn = (application - 1) % 17;
    const std::string state = turn == 16 ? std::string() : std::to_string(turn);
    const Day submitted = plan.today - days(random.Below(60));
    const bool booked = turn == 4;
    const std::chrono::year_month_day date{plan.today + days(random.Below(20)) - days(4)};
    const std::string bookedDay = Digits("%04lld-", static_cast<int>(date.year())) +
                                  Digits("%02lld-", static_cast<unsigned>(date.month())) +
                                  Digits("%02lld", static_cast<unsigned>(date.day()));
    const auto& [code, words] = kFailures[static_cast<std::size_t>(application / 17) % kFailures.size()];
    const bool failed = turn == 8;
    orders(number, application, state, std::string_view(random.Chance(70) ? "6" : "8"),
           failed ? code : std::string_view(), failed ? words : std::string_view(), SeedPerson(random),
           std::string_view(random.Chance(75) ? "000310" : "000402"), std::string_view(booked ? "1" : "0"),
           booked ? bookedDay : std::string(), std::string_view(booked ? "10" : ""),
           std::string_view(random.Chance(90) ? "F32001" : ""), DayText(submitted),
           Digits("%06lld", 90000 + random.Below(60)), random.Pick(names::CustomerRemarks()));
    AddSteps(steps, number, submitted, random);
  }
}

}  // namespace demohost
