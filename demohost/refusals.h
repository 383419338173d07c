// What this host and its bank refuse: the keys, and the exception that carries one to the caller. Each key
// has a text in every language of share/texts; the module's own keys aren't here. A detail of a failure (a
// field, a file, an account) is a line of its own before the key, which the error service shows as it is.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace demohost::refusal {

/// The name of a text.
using Key = std::string_view;

// From the bank.
inline constexpr Key kUnknownTransaction = "BK30001";  ///< the bank doesn't know this transaction
inline constexpr Key kBadRequest = "BK30002";          ///< the request can't be read
inline constexpr Key kMissingField = "BK30003";        ///< a field of the request is missing
inline constexpr Key kUnknownBusiness = "BK30004";     ///< the business code isn't known
inline constexpr Key kBadDate = "BK30005";             ///< not a date of the calendar
inline constexpr Key kReversedRange = "BK30006";       ///< the end of a range lies before its start
inline constexpr Key kNoAccount = "BK30007";           ///< the request names no account
inline constexpr Key kTooManyAccounts = "BK30008";     ///< more than 20 accounts in one row
inline constexpr Key kUnknownAccount = "BK30009";      ///< an account that isn't the customer's
inline constexpr Key kUnknownCode = "BK30010";         ///< a code that the bank's tables don't hold
inline constexpr Key kBadAmount = "BK30011";           ///< not an amount
inline constexpr Key kForeignCondition = "BK30012";    ///< a condition that this business doesn't have
inline constexpr Key kLongRange = "BK30013";           ///< a date range of 181 days or more
inline constexpr Key kMissingDate = "BK30014";         ///< a date that this business must be given
inline constexpr Key kUnknownBill = "BK30015";         ///< no such bill
inline constexpr Key kBankFailure = "BK30016";         ///< the bank's database failed
inline constexpr Key kUnknownRecord = "BK30017";       ///< no such record, or it has gone its way already

// From the host's own libraries.
inline constexpr Key kUnknownEntry = "HS40001";    ///< the store holds nothing under this key
inline constexpr Key kUnreadableText = "HS40002";  ///< a text handed to the host can't be read
inline constexpr Key kNotSaved = "HS40003";        ///< a file of the user's settings could not be saved
inline constexpr Key kNotExported = "HS40004";     ///< an export could not be written
inline constexpr Key kNotPrinted = "HS40005";      ///< a report could not be printed
inline constexpr Key kHostFailure = "HS40006";     ///< any other failure inside the host

}  // namespace demohost::refusal

namespace demohost {

/// What the bank turns down, or the host can't do: a key, and the detail that goes with it (UTF-8, may be
/// empty).
class Refused : public std::runtime_error {
 public:
  /// `key` is one of the keys above, or one of the module's.
  explicit Refused(std::string_view key, std::string detail = {})
      : std::runtime_error(std::string(key)), detail_(std::move(detail)) {}

  /// The key.
  std::string Key() const { return what(); }
  /// The detail, or an empty text.
  const std::string& Detail() const { return detail_; }

  /// The key and, before it, the detail as a line of its own where there is one: an error dialog shows the
  /// last line at once and the others on request.
  std::string Lines() const { return detail_.empty() ? Key() : detail_ + "\r\n" + Key(); }

 private:
  std::string detail_;
};

}  // namespace demohost
