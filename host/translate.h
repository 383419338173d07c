// The proxy of the host's translation library: texts by key, and Simplified to Traditional Chinese and back.
//
// For captions and messages, through g_pTranslate, and for the exchange in Traditional Chinese
// (host/safe_com.h).
#pragma once

#include <cstdint>
#include <string>

#include "host/text_service.h"

/// The host's translation library: texts by key, and the conversion between Simplified and Traditional
/// Chinese.
///
/// A refusal throws TIOException with the host's text as its key; a text with a NUL in it throws TException
/// "CF30005" before anything is sent. All calls: user-interface thread, after Bind.
class TranslateIntf {
 public:
  /// Which text of an exchange is converted.
  enum Direction : std::uint8_t { kRequest = 0, kAnswer = 1 };

  /// `module` is the library's handle, 0 where the host has none; nothing is called before Bind.
  explicit TranslateIntf(norvik_handle module);

  /// `publicInformation` is what InitModule received. TIOException "CF19001" if there is no library,
  /// "CF19002" if a function is missing. A second call does nothing.
  void Bind(norvik_handle publicInformation);

  /// The text of a key; its first four bytes are the section. Empty if the host has an empty text.
  std::string Translate(const std::string& key) const;

  /// The text of a key in a section. Empty if the host has an empty text.
  std::string Lookup(const std::string& section, const std::string& key) const;

  /// The text as the other side of an exchange writes it: 0 for a request, 1 for an answer.
  std::string Convert(const std::string& text, std::uint8_t direction) const;

  /// Calls the host no more: each operation throws LifeEnded from now on, one that is under way as soon as
  /// the host comes back from it.
  void Close() { service_.Close(); }

 private:
  norvik::TextService service_;
};

/// Set by InitModule, null after Release.
extern TranslateIntf* g_pTranslate;
