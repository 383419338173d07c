#include "demohost/skins.h"

#include <QByteArray>

#include "demohost/text_file.h"

namespace demohost {

void PackSkins(const std::filesystem::path& source, const std::filesystem::path& target) {
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(source, error)) {
    if (entry.path().extension() != ".qss") continue;
    const std::string sheet = ReadFile(entry.path());
    const QByteArray packed = qCompress(QByteArray::fromStdString(sheet));
    ReplaceFile(target / (entry.path().stem().string() + ".skin"), packed.toStdString());
  }
  if (error) throw FileError(source.string() + ": can't be read");
}

}  // namespace demohost
