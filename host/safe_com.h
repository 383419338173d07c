// The proxy of the host's secure communication library: exchanges with the bank, and the bank's time.
//
// For CMInterface::SendRequest, which shows that the user waits, and for whoever needs the bank's date,
// through g_pSafeCom.
#pragma once

#include <cstdint>
#include <string>

#include "data/corvane.h"
#include "host/binding.h"

/// The host's secure communication library: exchanges with the bank, and the bank's time.
///
/// All calls: user-interface thread; an exchange blocks it for as long as the host takes. With the language
/// "Traditional Chinese" both texts of an exchange go through TranslateIntf::Convert.
class SafeComIntf {
 public:
  /// Binds the twelve functions and reads the user's language, once. TException "ET16024" if any function is
  /// missing; a failure of g_pPubInfo propagates.
  explicit SafeComIntf(norvik_handle module);
  /// A proxy is not copied.
  SafeComIntf(const SafeComIntf&) = delete;
  /// A proxy is not assigned to.
  SafeComIntf& operator=(const SafeComIntf&) = delete;
  virtual ~SafeComIntf() = default;

  /// Sends a request and reads the answer. The request's encoding is "GBK" from then on, also after a
  /// failure. TException with one key for each line of the host's text if the exchange fails, "ET10016" if
  /// the answer is no stream, and "CF30001" to "CF30005" for a host that breaks the contract; nothing of such
  /// an answer is kept.
  corvane::CorvaneStream SendStream(const std::string& code, corvane::CorvaneStream& request);

  /// The exchange itself, of texts. `flag` goes to the host unchanged. Failures as SendStream, before any
  /// parsing.
  std::string SendText(const std::string& code, const std::string& text, std::int32_t flag);

  /// The bank's time, which runs on until the next call: all results are one object. TException "CF30006" if
  /// the host's time lies before 1970 or after the year 9999, in UTC or in local time, and the time before
  /// stays.
  corvane::TSysDateTime& GetServerTime();

  /// Calls the host no more: each operation throws LifeEnded from now on, one that is under way as soon as
  /// the host comes back from it.
  void Close() { functions_.Close(); }

 private:
  std::string Exchange(const std::string& code, const std::string& text, std::int32_t flag) const;

  std::string m_language;
  norvik_handle m_module;
  norvik::FunctionTable functions_;
  corvane::TSysDateTime m_serverTime;
};

/// Set by InitModule, null after Release.
extern SafeComIntf* g_pSafeCom;
