// The batch actions on a customer's orders: "COMSTTKP", "COMREASON", "EBBCMCOQ", "COMQRYAT" and "COMQRYFW".
// A request names orders in its list "userDataList"; the answer's "resultList" returns the caller's index
// of each row. Each function throws Refused for a missing field, and for an order or a flow that the bank
// doesn't know. Used by bank.cpp alone.
#pragma once

#include "data/corvane.h"
#include "demohost/bank/database.h"
#include "demohost/calendar.h"

namespace demohost {

/// The present state of each order, RECORDID and STT; an open one gets its final state first.
corvane::CorvaneStream SynchronizeStates(Database& database, const corvane::CorvaneStream& request);
/// Why orders failed: RECORDID, ERRCODE, ERRINF; either may be empty.
corvane::CorvaneStream FailureReasons(Database& database, const corvane::CorvaneStream& request);
/// Cancels orders: those that are drafted, wait for approval, or are booked for a day after `today`. The
/// answer lists the others, with ID and the reason as FLAG, and has counts and sums of both kinds.
corvane::CorvaneStream CancelOrders(Database& database, const corvane::CorvaneStream& request, Day today);
/// The steps of an order's approval.
corvane::CorvaneStream AuditTrail(Database& database, const corvane::CorvaneStream& request);
/// Who may approve a flow, level by level.
corvane::CorvaneStream ApprovalFlow(Database& database, const corvane::CorvaneStream& request);

}  // namespace demohost
