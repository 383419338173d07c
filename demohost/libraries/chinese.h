#pragma once

#include <string>
#include <string_view>

namespace demohost {

// Narrow text with each traditional character in its simplified form, and the other way round. Character by
// character, so that the length stays; a character without another form, or whose other form the code page
// lacks, stays as it is, and so does everything that isn't Chinese, markup included.
std::string SimplifiedFromTraditional(std::string_view text);
std::string TraditionalFromSimplified(std::string_view text);

}  // namespace demohost
