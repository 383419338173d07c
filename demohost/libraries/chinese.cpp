#include "demohost/libraries/chinese.h"

#include <unicode/translit.h>
#include <unicode/unistr.h>

#include <map>
#include <memory>
#include <stdexcept>

#include "platform/code_page.h"

namespace demohost {
namespace {

// The other form of each double-byte character that has one.
using Forms = std::map<std::string, std::string, std::less<>>;

Forms MakeForms(const char* rules) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Transliterator> transliterator(
      icu::Transliterator::createInstance(rules, UTRANS_FORWARD, status));
  if (U_FAILURE(status)) throw std::runtime_error(std::string("no conversion ") + rules);
  Forms forms;
  // The block "CJK Unified Ideographs": nearly all Chinese characters of code page 936 are in it.
  for (char16_t character = 0x4E00; character < 0xA000; ++character) {
    icu::UnicodeString text(character);
    transliterator->transliterate(text);
    if (text.length() != 1 || text[0] == character) continue;
    const char16_t other = text[0];
    const std::string from = norvik::Narrow({&character, 1});
    const std::string to = norvik::Narrow({&other, 1});
    if (from.size() == 2 && to.size() == 2) forms.emplace(from, to);
  }
  return forms;
}

std::string Convert(std::string_view text, const Forms& forms) {
  std::string converted(text);
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = norvik::CharacterLength(text, at);
    if (length == 2) {
      const auto found = forms.find(text.substr(at, 2));
      if (found != forms.end()) converted.replace(at, 2, found->second);
    }
    at += length;
  }
  return converted;
}

}  // namespace

std::string SimplifiedFromTraditional(std::string_view text) {
  static const Forms kForms = MakeForms("Traditional-Simplified");
  return Convert(text, kForms);
}

std::string TraditionalFromSimplified(std::string_view text) {
  static const Forms kForms = MakeForms("Simplified-Traditional");
  return Convert(text, kForms);
}

}  // namespace demohost
