// Makes a memo breakable over the lines of a label.
#pragma once

#include <string>

namespace norvik {

// The text with a blank put in front of the 79th of each 79 bytes, unless the 78th or 79th is a blank
// already, as long as more than 78 bytes are left. It stops for good where one of the two is a lead byte of
// the code page, so that no double-byte character is split; a text of at most 78 bytes stays as it is.
std::string BreakableMemo(const std::string& text);

}  // namespace norvik
