// The name of a bank by its number, from the directory that the host has in memory. The screens name
// institutions by it. It reads the host's directory at each call and keeps no copy.
#pragma once

#include <string>

#include "platform/host_api.h"

/// Looks up names in the host's directory; the host's loader fills it while it holds the named mutex
/// "_BankInfoLoader_". No look-up may happen while the loader fills the directory, so:
/// 1. A loader that runs beside the module has made the mutex, and holds it, before InitModule
///    (platform/host_api.h). The first look-up waits for it, once, with the wait form on the screen.
/// 2. If no such mutex exists, no loader is filling, and the directory is read without a wait. Each look-up
///    then asks for the mutex anew, so that a loader that starts late is waited for.
/// 3. If the wait fails, nothing is known: the name is empty, and the next look-up waits again.
/// 4. If the loader has ended without releasing the mutex, nobody fills the directory any more; it is read as
///    it is.
/// 5. User-interface thread only.
class TBankInfo {
 public:
  /// Reads "BANK_PDATA" of g_pPubInfo and opens the mutex as they are now.
  TBankInfo();
  TBankInfo(const TBankInfo&) = delete;
  TBankInfo& operator=(const TBankInfo&) = delete;
  /// Closes the mutex's handle; the directory remains the host's.
  ~TBankInfo();

  /// Waits until the directory is filled; returns at once when it is known to be filled or when there is
  /// nothing to wait for.
  void EnsureLoaded();

  /// The name of the bank with that number; empty if the directory lacks it, if the number has fewer than 8
  /// characters, or if the wait failed. LifeEnded after Close.
  std::string GetBankName(const std::string& number);

  /// Ends every use of the directory, as the host's proxies do.
  void Close() { closed_ = true; }

 private:
  norvik_handle m_directory;
  norvik_handle m_mutex;
  bool m_loaded = false;
  bool closed_ = false;
};

/// Set by InitModule, null after Release.
extern TBankInfo* g_pBankInfo;
