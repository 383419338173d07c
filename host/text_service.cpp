#include "host/text_service.h"

namespace norvik {

void TextService::Bind(norvik_handle publicInformation) {
  if (m_bound) return;
  if (m_module == 0) throw corvane::TIOException(m_terms.noModuleKey, std::string());
  if (!m_functions.Resolve(m_module, m_terms.ordinals)) {
    throw corvane::TIOException(m_terms.missingOrdinalKey, std::string());
  }
  // Only the low 8 bits of the result are told of both libraries.
  const std::uint8_t started = Function<std::uint8_t(norvik_handle)>(1)(publicInformation);
  if (started == 0 && m_terms.refusedKey) throw corvane::TIOException(m_terms.refusedKey, std::string());
  m_bound = true;
}

}  // namespace norvik
