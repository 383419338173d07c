#include "demohost/check/report.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>

#include "demohost/text_file.h"

namespace demohost::check {
namespace {

// A module's words may be of any length; a line of the table isn't.
constexpr std::size_t kMaxLine = 400;

// One line of UTF-8 without control characters.
std::string OneLine(std::string text) {
  if (text.size() > kMaxLine) {
    std::size_t end = kMaxLine;
    while ((static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
    text.resize(end);
    text += "...";
  }
  std::replace_if(
      text.begin(), text.end(), [](unsigned char byte) { return byte < 0x20 || byte == 0x7F; }, ' ');
  return text;
}

}  // namespace

Report::Report(const std::filesystem::path& file)
    : descriptor_(open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0600)) {
  if (descriptor_ < 0) throw FileError("can't write " + file.string());
}

Report::~Report() {
  close(descriptor_);
}

void Report::Write(const char* kind, const std::string& text) {
  const std::string line = std::string(kind) + ' ' + OneLine(text) + '\n';
  // A line that can't be written reads as a case that didn't come to its end.
  [[maybe_unused]] const auto written = write(descriptor_, line.data(), line.size());
}

ReportRead Report::Read(const std::filesystem::path& file) {
  ReportRead read;
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    const std::size_t blank = line.find(' ');
    const std::string kind = line.substr(0, blank);
    const std::string text = blank == std::string::npos ? std::string() : line.substr(blank + 1);
    if (kind == "step") read.step = text;
    if (kind == "item") read.items.push_back(text);
    if (kind == "failed" && read.failed.empty()) read.failed = text.empty() ? "no reason" : text;
    if (kind == "passed") read.passed = true;
  }
  return read;
}

}  // namespace demohost::check
