// The keys of the texts of state and approval codes. The business objects turn codes into texts with them,
// the frames compare texts with them; nothing here is translated.
#pragma once

#include <string>

namespace norvik {

/// Text keys of the states that a rule compares with: a list holds the texts of its records' states, not
/// their codes.
inline constexpr const char* kAwaitingApprovalKey = "UI52140";
inline constexpr const char* kReturnedKey = "UI52142";
inline constexpr const char* kApprovedKey = "UI52144";
inline constexpr const char* kFailedKey = "UI52148";
inline constexpr const char* kUnknownStateKey = "UI52150";

/// Text key of state 7 in the lists of the query screens.
inline constexpr const char* kSucceededKey = "UI52879";

/// Text keys of a PREFLG that means booked: of a record in a list, and of a record under audit.
inline constexpr const char* kBookedKey = "UI53030";
inline constexpr const char* kBookedUnderAuditKey = "UI52019";

/// The text key of a record's state code; state 7 has `key7`, an empty code the key of state 10. Empty for a
/// number that is no state. A code that is no number raises the toolkit's EConvertError.
std::string StateTextKey(const std::string& code, const std::string& key7);

/// The text key of an approval code "0" to "7"; empty for any other text.
std::string ApprovalTextKey(const std::string& code);

}  // namespace norvik
