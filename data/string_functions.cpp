#include "data/string_functions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "data/string_buffer.h"
#include "platform/code_page.h"

namespace corvane {
namespace {

bool isAscii(std::string_view text) {
  return norvik::AsciiRun(text) == text.size();
}

// The first start of a character at or after `goal`, going from `at`, which is one.
std::size_t stepTo(std::string_view text, std::size_t at, std::size_t goal) {
  if (const norvik::CharacterBounds* bounds = norvik::AnsiBounds())
    while (at < goal) at += bounds->Length(text, at);
  else
    while (at < goal) at += norvik::CharacterLength(text, at);
  return at;
}

}  // namespace

std::size_t findText(std::string_view text, std::string_view what, std::size_t from) {
  if (what.empty() || from > text.size()) return std::string_view::npos;
  std::size_t at = from;
  std::size_t hit = text.find(what, at);
  for (; hit != std::string_view::npos; hit = text.find(what, at)) {
    if (isAscii(text.substr(at, hit - at))) at = hit;
    at = stepTo(text, at, hit);
    if (at != hit) continue;
    if (stepTo(text, hit, hit + what.size()) == hit + what.size()) return hit;
    at += norvik::CharacterLength(text, at);
  }
  return hit;
}

std::string_view cutText(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  std::size_t at = 0;
  for (;;) {
    const std::size_t next = at + norvik::CharacterLength(text, at);
    if (next > bytes) return text.substr(0, at);
    at = next;
  }
}

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
  constexpr int kMaxPlaces = 1100;  // no number has more
  const int places = std::clamp(decimals, 0, kMaxPlaces);
  std::array<char, kMaxPlaces + 400> digits{};
  const auto written =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, places);
  return std::string(digits.data(), written.ptr) + (places == 0 ? "." : "");
}

}  // namespace corvane
