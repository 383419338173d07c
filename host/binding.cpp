#include "host/binding.h"

#include <algorithm>
#include <cstring>

#include "host/keys.h"

namespace norvik {

bool FunctionTable::Resolve(norvik_handle module, std::span<const std::uint32_t> ordinals) {
  m_ordinals = ordinals;
  m_functions.clear();
  for (const std::uint32_t ordinal : ordinals) m_functions.push_back(norvik_module_function(module, ordinal));
  const bool whole = std::find(m_functions.begin(), m_functions.end(), nullptr) == m_functions.end();
  // Of a library that was never started no function may be called.
  if (!whole) std::fill(m_functions.begin(), m_functions.end(), nullptr);
  return whole;
}

void* FunctionTable::Find(std::uint32_t ordinal) const {
  Check();
  const auto found = std::find(m_ordinals.begin(), m_ordinals.end(), ordinal);
  void* const function =
      found == m_ordinals.end() ? nullptr : m_functions[static_cast<std::size_t>(found - m_ordinals.begin())];
  if (!function) throw corvane::TException(key::kNotInitialised);
  return function;
}

const char* Outgoing(const std::string& text) {
  if (text.find('\0') != std::string::npos) throw corvane::TException(key::kNulInText);
  return text.c_str();
}

std::string ErrorText::Text() const {
  std::string text(m_buffer.data(), strnlen(m_buffer.data(), m_size));
  return text.empty() ? key::kNoReason : text;
}

void ErrorText::ThrowWhole() const {
  throw corvane::TIOException(Text(), std::string());
}

void ErrorText::ThrowLines() const {
  throw corvane::TException(corvane::StringVector(Text(), "\r\n", true));
}

std::string ResultPair::Text() const {
  if (m_length < 0) throw corvane::TIOException(key::kNegativeLength, std::string());
  if (m_length > kLongestAnswer) throw corvane::TIOException(key::kAbsurdLength, std::string());
  if (m_length == 0) return std::string();
  if (!m_buffer) throw corvane::TIOException(key::kMissingBuffer, std::string());
  return std::string(m_buffer, static_cast<std::size_t>(m_length));
}

}  // namespace norvik
