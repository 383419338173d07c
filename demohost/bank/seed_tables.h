// Fills the empty tables of seed.cpp, in this order and inside the caller's transaction: seed_records.cpp
// makes banks, accounts, bills and what happened to them, seed_orders.cpp what ECDS and the approvers know
// about these. Used by seed.cpp alone.
#pragma once

#include "demohost/bank/database.h"
#include "demohost/bank/seed.h"

namespace demohost {

/// Fills in codes, banks, accounts, bills, applications and events by the plan. Throws DatabaseError.
void FillBank(Database& database, const BankPlan& plan);

/// Fills in what ECDS and the large-value system hold about the bills in the tables: much about some, nothing
/// about others. Throws DatabaseError.
void FillEnquiries(Database& database, const BankPlan& plan);

/// Fills in an order for each application in the tables, in every state, with its approval so far, and the
/// flows. Throws DatabaseError.
void FillOrders(Database& database, const BankPlan& plan);

}  // namespace demohost
