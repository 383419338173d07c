// Simplified and traditional characters for the translation library and the bank directory. Goes by
// characters, not by words, as the code page does.
#pragma once

#include <string>
#include <string_view>

namespace demohost {

/// Narrow text with each traditional character in its simplified form. The length stays. A character stays as
/// it is where it has no other form or the code page lacks that form; so does everything that isn't Chinese,
/// markup included.
std::string SimplifiedFromTraditional(std::string_view text);

/// The same in the other direction.
std::string TraditionalFromSimplified(std::string_view text);

}  // namespace demohost
