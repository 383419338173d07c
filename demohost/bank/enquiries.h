// The enquiries that a customer makes about one bill: "EBBADEHQ", "EBBADERQ" and "EBBADHHQ". An answer has
// the bill's data as fields, the number of records as TOTALNM, and the records as "resultList". Each
// function throws Refused for a missing field and for a bill that isn't the account's. Used by bank.cpp
// alone.
#pragma once

#include "data/corvane.h"
#include "demohost/bank/database.h"

namespace demohost {

/// Enquiries and replies on the bill in ECDS. QURYTYP "1" names the bill by BILLSID, "2" by QURYNUM.
corvane::CorvaneStream EcdsHistory(Database& database, const corvane::CorvaneStream& request);
/// What ECDS has registered about the bill, which is named in the same way.
corvane::CorvaneStream EcdsRegistration(Database& database, const corvane::CorvaneStream& request);
/// Enquiries on the bill through the large-value payment system; BILLSID and BILLNUM name it.
corvane::CorvaneStream LargeValueResult(Database& database, const corvane::CorvaneStream& request);

}  // namespace demohost
