#include "data/string_functions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "data/character_steps.h"
#include "data/string_buffer.h"

namespace corvane {

std::string trim(std::string_view text) {
  return trimRight(trimLeft(text));
}

std::string trimLeft(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return std::string(first == std::string_view::npos ? std::string_view() : text.substr(first));
}

std::string trimRight(std::string_view text) {
  return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::size_t hit = findText(text, from);
  if (hit == std::string_view::npos) return std::string(text);
  StringBuffer buffer(static_cast<unsigned>(text.size()), 10240);
  std::size_t at = 0;
  for (; hit != std::string_view::npos; hit = findText(text, from, at)) {
    buffer.append(text.substr(at, hit - at));
    buffer.append(to);
    at = hit + from.size();
  }
  buffer.append(text.substr(at));
  return buffer.toString();
}

std::string doubleToString(double value, int decimals) {
  if (!std::isfinite(value)) return std::isnan(value) ? "nan" : value < 0 ? "-inf" : "inf";
  constexpr int kMostPlaces = 1100;  // no number has more
  const int places = std::clamp(decimals, 0, kMostPlaces);
  std::array<char, kMostPlaces + 400> digits{};
  const auto written =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, places);
  return std::string(digits.data(), written.ptr) + (places == 0 ? "." : "");
}

}  // namespace corvane
