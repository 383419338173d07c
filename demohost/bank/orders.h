#pragma once

#include "data/corvane.h"
#include "demohost/bank/database.h"
#include "demohost/calendar.h"

// The batch actions on a customer's orders: "COMSTTKP", "COMREASON", "EBBCMCOQ", "COMQRYAT" and "COMQRYFW". A
// request names orders in its list "userDataList"; the answer's "resultList" brings the caller's index of
// each row back. Each throws Refused for a missing field and for an order or a flow that the bank doesn't
// know.
namespace demohost {

// The present state of orders whose state was open: RECORDID and STT.
corvane::CorvaneStream SynchronizeStates(Database& database, const corvane::CorvaneStream& request);
// Why orders failed: RECORDID, ERRCODE, ERRINF; either may be empty.
corvane::CorvaneStream FailureReasons(Database& database, const corvane::CorvaneStream& request);
// Cancels orders. The answer lists those that could not be cancelled, with ID and the reason as FLAG, and
// bears counts and sums of both kinds. An order goes if it was drafted or waits for approval, or is booked
// for a day after `today`.
corvane::CorvaneStream CancelOrders(Database& database, const corvane::CorvaneStream& request, Day today);
// The steps of an order's approval.
corvane::CorvaneStream AuditTrail(Database& database, const corvane::CorvaneStream& request);
// Who may approve a flow, level by level.
corvane::CorvaneStream ApprovalFlow(Database& database, const corvane::CorvaneStream& request);

}  // namespace demohost
