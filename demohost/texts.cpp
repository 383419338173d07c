#include "demohost/texts.h"

#include <algorithm>
#include <sstream>

#include "demohost/text_file.h"

namespace demohost {
namespace {

using Table = std::map<std::string, std::string, std::less<>>;

// Appends to `text` what `escaped` stands for; false where a backslash is followed by anything but n, t and
// itself.
bool Unescape(std::string_view escaped, std::string& text) {
  for (std::size_t at = 0; at < escaped.size(); ++at) {
    if (escaped[at] != '\\') {
      text += escaped[at];
      continue;
    }
    if (++at == escaped.size()) return false;
    switch (escaped[at]) {
      case 'n':
        text += '\n';
        break;
      case 't':
        text += '\t';
        break;
      case '\\':
        text += '\\';
        break;
      default:
        return false;
    }
  }
  return true;
}

Table ReadTexts(const std::filesystem::path& file) {
  std::istringstream lines(ReadFile(file));
  Table table;
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == '#') continue;
    const auto fail = [&](const char* reason) {
      throw FileError(file.string() + ":" + std::to_string(number) + ": " + reason);
    };
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos || equals == 0) fail("a line is KEY=text");
    std::string text;
    if (!Unescape(std::string_view(line).substr(equals + 1), text)) fail("an unknown escape");
    if (!table.emplace(line.substr(0, equals), std::move(text)).second) fail("the key stands twice");
  }
  return table;
}

}  // namespace

bool IsLanguage(std::string_view name) {
  return std::any_of(kLanguages.begin(), kLanguages.end(),
                     [name](const Language& language) { return language.name == name; });
}

Texts::Texts(const std::filesystem::path& folder) {
  for (const Language& language : kLanguages) {
    languages_.emplace(language.name, ReadTexts(folder / (std::string(language.file) + ".txt")));
  }
}

std::string_view Texts::Find(std::string_view language, std::string_view key) const {
  const Table& table = All(language);
  const auto found = table.find(key);
  return found == table.end() ? std::string_view() : std::string_view(found->second);
}

const Table& Texts::All(std::string_view language) const {
  static const Table kNone;
  const auto found = languages_.find(language);
  return found == languages_.end() ? kNone : found->second;
}

}  // namespace demohost
