#include "host/error.h"

#include "host/keys.h"
#include "host/ordinals.h"

namespace {

constexpr norvik::TextService::Terms kTerms = {norvik::ordinals::kError, norvik::key::kNoErrors,
                                               norvik::key::kErrorsIncomplete,
                                               norvik::key::kErrorsNotStarted};

}  // namespace

ErrorIntf::ErrorIntf(norvik_handle module) : service_(kTerms, module) {}

void ErrorIntf::Bind(norvik_handle publicInformation) {
  service_.Bind(publicInformation);
}

std::string ErrorIntf::GetErrorText(const std::string& keys, std::uint8_t flag) const {
  return Text(norvik::ordinals::kErrorText, keys, flag);
}

std::string ErrorIntf::GetReasonText(const std::string& code, std::uint8_t flag) const {
  return Text(norvik::ordinals::kReasonText, code, flag);
}

std::string ErrorIntf::Text(std::uint32_t ordinal, const std::string& codeOrKeys, std::uint8_t flag) const {
  using Ask = std::uint8_t(char**, std::int32_t*, const char*, char*, std::uint8_t);
  const auto ask = service_.Function<Ask>(ordinal);
  const char* const whole = norvik::Outgoing(codeOrKeys);
  return service_.Read([&](char** buffer, std::int32_t* length, char* error) {
    return ask(buffer, length, whole, error, flag);
  });
}
