#include "data/character_steps.h"

#include "platform/code_page.h"

namespace corvane {
namespace {

bool IsAscii(std::string_view text) {
  return norvik::AsciiRun(text) == text.size();
}

// The first start of a character at or behind `goal`, going from `at`, which is one.
std::size_t StepTo(std::string_view text, std::size_t at, std::size_t goal) {
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
    if (IsAscii(text.substr(at, hit - at))) at = hit;
    at = StepTo(text, at, hit);
    if (at != hit) continue;
    if (StepTo(text, hit, hit + what.size()) == hit + what.size()) return hit;
    at += norvik::CharacterLength(text, at);
  }
  return hit;
}

bool isBehindBackslash(std::string_view text, std::size_t at, std::size_t behind) {
  if (at == 0 || text[at - 1] != '\\') return false;
  std::size_t last = behind;
  for (std::size_t next = behind; next < at; next += norvik::CharacterLength(text, next)) last = next;
  return last == at - 1;
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

}  // namespace corvane
