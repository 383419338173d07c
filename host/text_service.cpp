#include "host/text_service.h"

#include "host/ordinals.h"

namespace norvik {

void TextService::Bind(norvik_handle publicInformation) {
  if (m_bound) return;
  if (m_module == 0) throw corvane::TIOException(terms_.noModuleKey, std::string());
  if (!functions_.Resolve(m_module, terms_.ordinals)) {
    throw corvane::TIOException(terms_.missingOrdinalKey, std::string());
  }
  // Of both libraries only the low 8 bits of the result are promised.
  const std::uint8_t started = Function<std::uint8_t(norvik_handle)>(ordinals::kStart)(publicInformation);
  if (started == 0 && terms_.refusedKey) throw corvane::TIOException(terms_.refusedKey, std::string());
  m_bound = true;
}

}  // namespace norvik
