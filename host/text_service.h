// What the translation and the error library have in common, for their two proxies.
//
// host/translate.h and host/error.h are the doors to it; nobody else includes this.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "host/binding.h"
#include "host/ordinals.h"

namespace norvik {

/// What the translation and the error library have in common: eight functions, ordinal 1 to start, ordinal 3
/// to take buffers back.
class TextService {
 public:
  /// In what the two differ.
  struct Terms {
    /// The ordinals that the library must answer.
    std::span<const std::uint32_t> ordinals;
    /// The key of the failure where there is no library.
    const char* noModuleKey;
    /// The key of the failure where a function is missing.
    const char* missingOrdinalKey;
    /// The key of the failure where the library doesn't start; null where the result of ordinal 1 doesn't
    /// count.
    const char* refusedKey;
  };

  /// `terms` lives as long as the service.
  TextService(const Terms& terms, norvik_handle module) : terms_(terms), m_module(module) {}

  /// Binds and starts the library; a second call does nothing. TIOException with the key of `terms` on
  /// failure.
  void Bind(norvik_handle publicInformation);

  /// As ReadText; buffers go back through ordinal 3.
  template <class Call>
  std::string Read(Call call) const {
    return ReadText(functions_.Function<void(char*)>(ordinals::kGiveBack), call);
  }

  /// The function with that ordinal, as FunctionTable::Function.
  template <class Signature>
  HostFunction<Signature> Function(std::uint32_t ordinal) const {
    return functions_.Function<Signature>(ordinal);
  }

  /// Calls the library no more.
  void Close() { functions_.Close(); }

 private:
  const Terms& terms_;
  norvik_handle m_module;
  bool m_bound = false;
  FunctionTable functions_;
};

}  // namespace norvik
