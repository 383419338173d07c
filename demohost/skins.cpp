#include "demohost/skins.h"

#include <QByteArray>
#include <map>
#include <sstream>

#include "demohost/text_file.h"

namespace demohost {
namespace {

using Colours = std::map<std::string, std::string>;

// Lines of "name = value".
Colours ReadColours(const std::filesystem::path& path) {
  Colours colours;
  std::istringstream text(ReadFile(path));
  std::string name;
  std::string equals;
  std::string value;
  while (text >> name >> equals >> value) colours[name] = value;
  return colours;
}

std::string Coloured(const std::string& sheet, const std::filesystem::path& list) {
  const Colours colours = ReadColours(list);
  const auto in_name = [](char c) { return (c >= 'a' && c <= 'z') || c == '_'; };
  std::string result;
  for (std::size_t at = 0; at < sheet.size();) {
    std::size_t end = at + 1;
    while (sheet[at] == '@' && end < sheet.size() && in_name(sheet[end])) ++end;
    if (end == at + 1) {
      result += sheet[at];
    } else {
      const std::string name = sheet.substr(at + 1, end - at - 1);
      const auto colour = colours.find(name);
      if (colour == colours.end()) throw FileError(list.string() + ": has no colour " + name);
      result += colour->second;
    }
    at = end;
  }
  return result;
}

}  // namespace

void PackSkins(const std::filesystem::path& source, const std::filesystem::path& target) {
  const std::string sheet = ReadFile(source / "forms.qss");
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(source, error)) {
    if (entry.path().extension() != ".colours") continue;
    const QByteArray packed = qCompress(QByteArray::fromStdString(Coloured(sheet, entry.path())));
    ReplaceFile(target / (entry.path().stem().string() + ".skin"), packed.toStdString());
  }
  if (error) throw FileError(source.string() + ": can't be read");
}

}  // namespace demohost
