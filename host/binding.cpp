#include "host/binding.h"

#include <algorithm>
#include <cstring>

#include "host/keys.h"

namespace norvik {

bool FunctionTable::Resolve(norvik_handle module, std::span<const std::uint32_t> ordinals) {
  ordinals_ = ordinals;
  functions_.clear();
  for (const std::uint32_t ordinal : ordinals) functions_.push_back(norvik_module_function(module, ordinal));
  const bool whole = std::find(functions_.begin(), functions_.end(), nullptr) == functions_.end();
  // Of a library that was never started no function may be called.
  if (!whole) std::fill(functions_.begin(), functions_.end(), nullptr);
  return whole;
}

void* FunctionTable::Find(std::uint32_t ordinal) const {
  Check();
  const auto found = std::find(ordinals_.begin(), ordinals_.end(), ordinal);
  void* const function =
      found == ordinals_.end() ? nullptr : functions_[static_cast<std::size_t>(found - ordinals_.begin())];
  if (!function) throw corvane::TException(key::kNotInitialised);
  return function;
}

const char* Outgoing(const std::string& text) {
  if (text.find('\0') != std::string::npos) throw corvane::TException(key::kNulInText);
  return text.c_str();
}

std::string ErrorText::Text() const {
  std::string text(buffer_.data(), strnlen(buffer_.data(), size_));
  return text.empty() ? key::kNoReason : text;
}

void ErrorText::ThrowWhole() const {
  throw corvane::TIOException(Text(), std::string());
}

void ErrorText::ThrowLines() const {
  throw corvane::TException(corvane::StringVector(Text(), "\r\n", true));
}

std::string ResultPair::Text() const {
  if (length_ < 0) throw corvane::TIOException(key::kNegativeLength, std::string());
  if (length_ > kMaxAnswerBytes) throw corvane::TIOException(key::kAbsurdLength, std::string());
  if (length_ == 0) return std::string();
  if (!buffer_) throw corvane::TIOException(key::kMissingBuffer, std::string());
  return std::string(buffer_, static_cast<std::size_t>(length_));
}

}  // namespace norvik
