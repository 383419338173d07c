#pragma once

#include <filesystem>

namespace demohost {

// Packs each style sheet <source>/<name>.qss as <target>/<name>.skin: UTF-8, compressed as qCompress does,
// which is the form that a module's skins have. Throws FileError.
void PackSkins(const std::filesystem::path& source, const std::filesystem::path& target);

}  // namespace demohost
