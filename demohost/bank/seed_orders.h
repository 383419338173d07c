#pragma once

#include "demohost/bank/database.h"
#include "demohost/bank/seed.h"

namespace demohost {

// What ECDS and the large-value system hold about the bills that stand in the tables: some bills have much,
// some nothing.
void FillEnquiries(Database& database, const BankPlan& plan);

// An order for each application that stands in the tables, in every state, with its approval so far, and the
// flows.
void FillOrders(Database& database, const BankPlan& plan);

}  // namespace demohost
