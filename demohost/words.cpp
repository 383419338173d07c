#include "demohost/words.h"

#include <QString>
#include <algorithm>

namespace demohost {

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  std::size_t start = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;
       at = text.find(separator, start)) {
    pieces.emplace_back(text.substr(start, at - start));
    start = at + separator.size();
  }
  pieces.emplace_back(text.substr(start));
  return pieces;
}

std::vector<std::string> Split(std::string_view text, char separator) {
  return Split(text, std::string_view(&separator, 1));
}

std::string LowerAscii(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); });
  return lower;
}

QString ToQt(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace demohost
