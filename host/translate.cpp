#include "host/translate.h"

#include "host/keys.h"
#include "host/ordinals.h"

using norvik::Outgoing;

namespace {

constexpr norvik::TextService::Terms kTerms = {norvik::ordinals::kTranslate, norvik::key::kNoTranslation,
                                               norvik::key::kTranslationIncomplete, nullptr};
constexpr std::size_t kSectionLength = 4;

}  // namespace

TranslateIntf::TranslateIntf(norvik_handle module) : service_(kTerms, module) {}

void TranslateIntf::Bind(norvik_handle publicInformation) {
  service_.Bind(publicInformation);
}

std::string TranslateIntf::Translate(const std::string& key) const {
  return Lookup(key.substr(0, kSectionLength), key);
}

std::string TranslateIntf::Lookup(const std::string& section, const std::string& key) const {
  using Lookup = std::uint8_t(char**, std::int32_t*, const char*, const char*, char*);
  const auto lookup = service_.Function<Lookup>(norvik::ordinals::kLookUp);
  const char* const part = Outgoing(section);
  const char* const name = Outgoing(key);
  return service_.Read([&](char** buffer, std::int32_t* length, char* error) {
    return lookup(buffer, length, part, name, error);
  });
}

std::string TranslateIntf::Convert(const std::string& text, std::uint8_t direction) const {
  using Convert = std::uint8_t(char**, std::int32_t*, const char*, std::uint8_t, char*);
  const auto convert = service_.Function<Convert>(norvik::ordinals::kConvert);
  const char* const whole = Outgoing(text);
  return service_.Read([&](char** buffer, std::int32_t* length, char* error) {
    return convert(buffer, length, whole, direction, error);
  });
}
