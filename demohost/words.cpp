#include "demohost/words.h"

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

}  // namespace demohost
