#include "demohost/text_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>

namespace demohost {
namespace {

[[noreturn]] void FailAt(const std::filesystem::path& file, int line, const std::string& reason) {
  throw FileError(file.string() + ":" + std::to_string(line) + ": " + reason);
}

// An open file of the system, closed with the object.
class Descriptor {
 public:
  explicit Descriptor(const std::filesystem::path& file)
      : number_(::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644)) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool Write(std::string_view content) {
    while (!content.empty()) {
      const ssize_t written = ::write(number_, content.data(), content.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) return false;
      content.remove_prefix(static_cast<std::size_t>(written));
    }
    return ::fsync(number_) == 0;
  }

 private:
  int number_;
};

std::vector<std::string> Words(const std::string& line) {
  std::istringstream stream(line);
  return {std::istream_iterator<std::string>(stream), std::istream_iterator<std::string>()};
}

}  // namespace

std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::string content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  if (!stream) throw FileError(file.string() + ": can't be read");
  return content;
}

std::filesystem::path PlaceBeside(const std::filesystem::path& file) {
  std::filesystem::path beside = file;
  beside += ".new";
  return beside;
}

void ReplaceFile(const std::filesystem::path& file, std::string_view content) {
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  const std::filesystem::path beside = PlaceBeside(file);
  if (!Descriptor(beside).Write(content)) {
    const std::string reason = std::strerror(errno);
    std::filesystem::remove(beside, error);
    throw FileError(file.string() + ": can't be written: " + reason);
  }
  std::filesystem::rename(beside, file, error);
  if (error) throw FileError(file.string() + ": can't be replaced: " + error.message());
}

Sections ReadSections(const std::filesystem::path& file, std::size_t words) {
  std::istringstream lines(ReadFile(file));
  Sections sections;
  std::vector<std::vector<std::string>>* section = nullptr;
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    std::vector<std::string> parts = Words(line);
    if (parts.empty() || parts[0][0] == '#') continue;
    if (parts[0][0] == '[') {
      if (parts.size() != 1 || parts[0].back() != ']') FailAt(file, number, "a section is [NAME]");
      const auto [entry, fresh] = sections.try_emplace(parts[0].substr(1, parts[0].size() - 2));
      if (!fresh) FailAt(file, number, "the section " + entry->first + " stands twice");
      section = &entry->second;
      continue;
    }
    if (section == nullptr) FailAt(file, number, "a line before the first section");
    if (parts.size() != words) FailAt(file, number, "expected " + std::to_string(words) + " words");
    section->push_back(std::move(parts));
  }
  return sections;
}

}  // namespace demohost
