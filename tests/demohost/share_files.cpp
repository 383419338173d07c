#include "tests/demohost/share_files.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace fs = std::filesystem;

const std::vector<std::string> kLanguages = {"zh_CN", "zh_TW", "en"};

namespace {

const fs::path kSource = NORVIK_SOURCE_DIR;
const fs::path kShare = kSource / "demohost/share";

std::vector<std::pair<int, std::string>> ContentLines(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::vector<std::pair<int, std::string>> lines;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (!line.empty() && line.front() != '#') lines.emplace_back(number, line);
  }
  return lines;
}

void AddKeysOf(const fs::path& path, std::map<std::string, std::string>& places) {
  static const std::regex kKey("\"([A-Z]{2}[0-9]{5})\"");
  for (const auto& [number, line] : ContentLines(path)) {
    for (std::sregex_iterator hit(line.begin(), line.end(), kKey), end; hit != end; ++hit) {
      std::string& place = places[(*hit)[1].str()];
      if (!place.empty()) place += ", ";
      place += fs::relative(path, kSource).string() + ":" + std::to_string(number);
    }
  }
}

}  // namespace

std::vector<TextLine> ReadTexts(const std::string& language) {
  std::vector<TextLine> texts;
  for (const auto& [number, line] : ContentLines(kShare / "texts" / (language + ".txt"))) {
    const std::size_t sign = line.find('=');
    if (sign == std::string::npos) {
      texts.push_back({number, "", line});
    } else {
      texts.push_back({number, line.substr(0, sign), line.substr(sign + 1)});
    }
  }
  return texts;
}

std::map<std::string, std::string> TextsByKey(const std::string& language) {
  std::map<std::string, std::string> byKey;
  for (const TextLine& line : ReadTexts(language)) byKey.emplace(line.key, line.text);
  return byKey;
}

Table ReadTable(const std::string& name) {
  Table table;
  std::string section;
  for (const auto& [number, line] : ContentLines(kShare / "tables" / name)) {
    if (line.front() == '[') {
      section = line.substr(1, line.find(']') - 1);
      table[section];
      continue;
    }
    std::istringstream words(line);
    std::vector<std::string> row;
    for (std::string word; words >> word;) row.push_back(word);
    table[section].push_back(row);
  }
  return table;
}

std::map<std::string, std::string> KeysInSources() {
  std::map<std::string, std::string> places;
  for (const char* folder :
       {"platform", "data", "host", "dialogs", "framework", "repository", "shell", "toolkit", "demohost"}) {
    if (!fs::exists(kSource / folder)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(kSource / folder)) {
      const fs::path extension = entry.path().extension();
      if (extension == ".cpp" || extension == ".h") AddKeysOf(entry.path(), places);
    }
  }
  return places;
}

std::string Lines(const std::vector<std::string>& parts) {
  std::string all;
  for (const std::string& part : parts) all += part + "\n";
  return all;
}
