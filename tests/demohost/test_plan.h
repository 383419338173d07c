// The plan of a small bank with every dictionary from which a record takes a code. Used by the tests of the
// demonstration host that ask a bank.
#pragma once

#include "demohost/bank/seed.h"

namespace demohost {

/// A bank's plan with few codes, around a fixed day.
inline BankPlan TestPlan(std::int64_t bills) {
  return {bills,
          *DayOf("20260615"),
          {{"AGENTSTT", {"01", "02", "03", "C0", "D0"}},
           {"BILLTYPE", {"-9999", "AC01", "AC02"}},
           {"YESORNO", {"0", "1"}},
           {"BANKRMK", {"-9999", "01", "02"}},
           {"LOANRESULT", {"01", "02"}},
           {"LOANTYPEAPP", {"01", "02", "03"}},
           {"BUSITYPE", {"01", "02"}},
           {"TRANSMK", {"EM00", "EM01"}},
           {"SIGNINFOTYPE", {"01", "02"}}}};
}

}  // namespace demohost
