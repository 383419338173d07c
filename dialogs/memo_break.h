// Makes a memo breakable over the lines of a label, which breaks at blanks alone. The approval view uses it;
// it knows no label.
#pragma once

#include <string>

namespace norvik {

/// The text with a blank inserted before the 79th of each 79 bytes, unless the 78th or 79th is a blank
/// already, as long as more than 78 bytes remain. It stops altogether at the first place where one of the two
/// is a lead byte of the code page, so that no double-byte character is split; a text of at most 78 bytes is
/// unchanged.
std::string BreakableMemo(const std::string& text);

}  // namespace norvik
