// Reads the exported symbols of a shared object from its file, without loading it, since loading runs its
// code. Used by the case "exports".
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>

namespace demohost::check {

/// The symbols that a 64-bit ELF shared object of this machine defines for others. Nothing where the file
/// isn't one, or its tables are outside it. Throws FileError where it can't be read.
std::optional<std::set<std::string>> ExportsOf(const std::filesystem::path& library);

}  // namespace demohost::check
