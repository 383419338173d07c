// The proxy of the host's error library: keys and reason codes to messages.
//
// For the standard reporting (dialogs/messages.h) and the screens, through g_pError. It shows nothing itself.
#pragma once

#include <cstdint>
#include <string>

#include "host/text_service.h"

/// The host's error library: messages for error keys and for the reason codes of an answer.
///
/// A refusal throws TIOException with the host's text as its key; a text with a NUL in it throws TException
/// "CF30005" before anything is sent. All calls: user-interface thread, after Bind.
class ErrorIntf {
 public:
  /// `module` is the library's handle, 0 where the host has none; nothing is called before Bind.
  explicit ErrorIntf(norvik_handle module);

  /// `publicInformation` is what InitModule received. TIOException "CF23001" if there is no library,
  /// "CF23002" if a function is missing, "CF23003" if the library doesn't start. A second call does nothing.
  void Bind(norvik_handle publicInformation);

  /// The message for keys joined with "\r\n", as TException::getMessage gives them.
  std::string GetErrorText(const std::string& keys, std::uint8_t flag = 1) const;

  /// The message for a reason code that stands in a row of an answer.
  std::string GetReasonText(const std::string& code, std::uint8_t flag = 1) const;

  /// Calls the host no more: each operation throws LifeEnded from now on, one that is under way as soon as
  /// the host comes back from it.
  void Close() { service_.Close(); }

 private:
  std::string Text(std::uint32_t ordinal, const std::string& codeOrKeys, std::uint8_t flag) const;

  norvik::TextService service_;
};

/// Set by InitModule, null after Release.
extern ErrorIntf* g_pError;
