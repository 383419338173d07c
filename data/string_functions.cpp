#include "data/string_functions.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

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
  const int places = std::clamp(decimals, 0, 400);
  std::vector<char> digits(static_cast<std::size_t>(places) + 400);
  int point = 0;
  int negative = 0;
  fcvt_r(value, places, &point, &negative, digits.data(), digits.size());
  const std::string text(digits.data());
  const std::string sign = negative != 0 ? "-" : "";
  if (point <= 0) return sign + "0." + std::string(static_cast<std::size_t>(-point), '0') + text;
  const auto whole = static_cast<std::size_t>(point);
  return sign + text.substr(0, whole) + "." + text.substr(whole);
}

}  // namespace corvane
