#pragma once

#include "demohost/bank/database.h"
#include "demohost/bank/seed.h"

namespace demohost {

// Fills the empty tables of SchemaSql by the plan, inside the caller's transaction.
void FillBank(Database& database, const BankPlan& plan);

}  // namespace demohost
