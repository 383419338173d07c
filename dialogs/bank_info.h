// The name of a bank by its number, from the directory that the host keeps in memory.
#pragma once

#include <string>

#include "platform/host_api.h"

// Reads the host's directory by look-up; the host's loader fills it behind the named mutex
// "_BankInfoLoader_". What must not happen is a look-up while the loader fills, so:
// 1. A loader that runs beside the module has made the mutex, and holds it, before InitModule
//    (platform/host_api.h). The first look-up waits for it, once, behind the wait form.
// 2. Where no such mutex exists no loader is filling, and the directory is read without a wait. Each
//    look-up then asks for the mutex anew, so a loader that starts late is waited for.
// 3. Where the wait fails, nothing is known: the name is empty, and the next look-up waits again.
// 4. Where the loader has ended without giving the mutex back nobody fills any more; the directory is read
//    as it stands.
// 5. User-interface thread only.
class TBankInfo {
 public:
  // Takes "BANK_PDATA" of g_pPubInfo and the mutex as they are now.
  TBankInfo();
  TBankInfo(const TBankInfo&) = delete;
  TBankInfo& operator=(const TBankInfo&) = delete;
  // Gives the mutex's handle back; the directory stays the host's.
  ~TBankInfo();

  // Waits until the directory is filled; returns at once when that is known or when there is nothing to
  // wait for.
  void EnsureLoaded();

  // The name of the bank with that number; empty if the directory lacks it, if the number has fewer than 8
  // characters, or if the wait failed.
  std::string GetBankName(const std::string& number);

  // Reads the directory no more, as the host's proxies do.
  void Close() { closed_ = true; }

 private:
  norvik_handle m_directory;
  norvik_handle m_mutex;
  bool m_loaded = false;
  bool closed_ = false;
};

// Set by InitModule, null after Release.
extern TBankInfo* g_pBankInfo;
