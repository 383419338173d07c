#include "host/text_service.h"

namespace norvik {

void TextService::Bind(norvik_handle publicInformation) {
  if (m_bound) return;
  if (m_module == 0) throw corvane::TIOException(terms_.noModuleKey, std::string());
  if (!functions_.Resolve(m_module, terms_.ordinals)) {
    throw corvane::TIOException(terms_.missingOrdinalKey, std::string());
  }
  // Only the low 8 bits of the result are told of both libraries.
  const std::uint8_t started = Function<std::uint8_t(norvik_handle)>(1)(publicInformation);
  if (started == 0 && terms_.refusedKey) throw corvane::TIOException(terms_.refusedKey, std::string());
  m_bound = true;
}

}  // namespace norvik
