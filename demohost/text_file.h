// Files of the host: read whole, replaced whole, and tables of words in sections. Every other part that
// touches a file of texts, tables or settings does it through here, so that failures name the file.
#pragma once

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace demohost {

/// A file of the host that can't be read, or holds what it mustn't; what() is a sentence with file, line and
/// reason.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The file's bytes. Throws FileError.
std::string ReadFile(const std::filesystem::path& file);

/// The place beside a file where its new content is written, before it is renamed to the file.
std::filesystem::path PlaceBeside(const std::filesystem::path& file);

/// Replaces the file by `content` in one step: it is written beside the file, carried to the disk and
/// renamed. The folder is made where it is missing. Throws FileError, and the old file is then whole.
void ReplaceFile(const std::filesystem::path& file, std::string_view content);

/// A file of sections: lines of `[NAME]`, each followed by lines of a fixed number of words. Empty lines and
/// lines that start with # don't count.
using Sections = std::map<std::string, std::vector<std::vector<std::string>>>;

/// Reads such a file whose lines have `words` words each. Throws FileError for any other line, a line before
/// the first section, and a section that occurs twice.
Sections ReadSections(const std::filesystem::path& file, std::size_t words);

}  // namespace demohost
