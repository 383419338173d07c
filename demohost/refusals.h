#pragma once

#include <string_view>

// The keys that this host and its bank refuse with, beside those of the module itself. Each has a text in
// every language of share/texts. Where a failure has a detail (a field, a file, an account), it stands before
// the key as a line of its own, which the error service shows as it is.
namespace demohost::refusal {

// From the bank.
inline constexpr std::string_view kUnknownTransaction = "BK30001";  // the bank doesn't know this transaction
inline constexpr std::string_view kBadRequest = "BK30002";          // the request can't be read
inline constexpr std::string_view kMissingField = "BK30003";        // a field of the request is missing
inline constexpr std::string_view kUnknownBusiness = "BK30004";     // the business code isn't known
inline constexpr std::string_view kBadDate = "BK30005";             // not a date of the calendar
inline constexpr std::string_view kReversedRange = "BK30006";    // the end of a range lies before its start
inline constexpr std::string_view kNoAccount = "BK30007";        // the request names no account
inline constexpr std::string_view kTooManyAccounts = "BK30008";  // more than 20 accounts in one row
inline constexpr std::string_view kUnknownAccount = "BK30009";   // an account that isn't the customer's
inline constexpr std::string_view kUnknownCode = "BK30010";      // a code that the bank's tables don't hold
inline constexpr std::string_view kBadAmount = "BK30011";        // not an amount
inline constexpr std::string_view kForeignCondition =
    "BK30012";                                               // a condition that this business doesn't have
inline constexpr std::string_view kLongRange = "BK30013";    // a date range of 181 days or more
inline constexpr std::string_view kMissingDate = "BK30014";  // a date that this business must be given
inline constexpr std::string_view kUnknownBill = "BK30015";  // no such bill
inline constexpr std::string_view kBankFailure = "BK30016";  // the bank's database failed
inline constexpr std::string_view kUnknownRecord =
    "BK30017";  // no such record, or it has gone its way already

// From the host's own libraries.
inline constexpr std::string_view kUnknownEntry = "HS40001";    // the store holds nothing under this key
inline constexpr std::string_view kUnreadableText = "HS40002";  // a text handed to the host can't be read
inline constexpr std::string_view kNotSaved = "HS40003";  // a file of the user's settings could not be saved
inline constexpr std::string_view kNotExported = "HS40004";  // an export could not be written
inline constexpr std::string_view kNotPrinted = "HS40005";   // a report could not be printed
inline constexpr std::string_view kHostFailure = "HS40006";  // any other failure inside the host

}  // namespace demohost::refusal
