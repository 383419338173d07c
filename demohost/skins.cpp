#include "demohost/skins.h"

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPainter>
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

// The colours and the path of the tick picture in the sheet.
std::string Filled(const std::string& sheet, const std::filesystem::path& list, const Colours& colours) {
  const auto inName = [](char c) { return (c >= 'a' && c <= 'z') || c == '_'; };
  std::string result;
  for (std::size_t at = 0; at < sheet.size();) {
    std::size_t end = at + 1;
    while (sheet[at] == '@' && end < sheet.size() && inName(sheet[end])) ++end;
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

// A tick in a colour, as a PNG file's bytes.
std::string DrawnTick(const std::string& colour) {
  QImage picture(26, 26, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(QLatin1String(colour.c_str())), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({{6, 13}, {11, 19}, {21, 7}}));
  painter.end();
  QBuffer file;
  picture.save(&file, "PNG");
  return file.data().toStdString();
}

}  // namespace

void PackSkins(const std::filesystem::path& source, const std::filesystem::path& target) {
  const std::string sheet = ReadFile(source / "forms.qss");
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(source, error)) {
    if (entry.path().extension() != ".colours") continue;
    const std::string name = entry.path().stem().string();
    const std::filesystem::path tick = target / (name + ".tick.png");
    Colours colours = ReadColours(entry.path());
    ReplaceFile(tick, DrawnTick(colours["accent"]));
    colours["tick"] = std::filesystem::absolute(tick).generic_string();
    const QByteArray packed = qCompress(QByteArray::fromStdString(Filled(sheet, entry.path(), colours)));
    ReplaceFile(target / (name + ".skin"), packed.toStdString());
  }
  if (error) throw FileError(source.string() + ": can't be read");
}

const std::vector<SkinStyle>& SkinStyles() {
  static const std::vector<SkinStyle> kStyles = {
      {"SK00", "plain.skin"}, {"SK01", "light.skin"}, {"SK02", "dark.skin"}};
  return kStyles;
}

}  // namespace demohost
