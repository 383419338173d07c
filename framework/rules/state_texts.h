// The keys of the texts that stand for state and approval codes.
#pragma once

#include <string>

namespace norvik {

// The text key of a record's state code; state 7 takes `key7`, an empty code the key of state 10. Empty for a
// number that is no state. A code that is no number raises the toolkit's EConvertError.
std::string StateTextKey(const std::string& code, const std::string& key7);

// The text key of an approval code "0" to "7"; empty for any other text.
std::string ApprovalTextKey(const std::string& code);

}  // namespace norvik
