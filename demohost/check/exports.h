#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>

namespace demohost::check {

// The symbols that a 64-bit ELF shared object of this machine defines for others. Nothing where the file
// isn't one or its tables lie outside it. Throws FileError where it can't be read.
std::optional<std::set<std::string>> ExportsOf(const std::filesystem::path& library);

}  // namespace demohost::check
