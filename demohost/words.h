#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace demohost {

// The pieces between the separators, empty ones included; one empty piece for an empty text. UTF-8 or ASCII:
// no byte of a longer character looks like a separator.
std::vector<std::string> Split(std::string_view text, char separator);

// The same with a separator of several characters, which must not be empty.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

}  // namespace demohost
