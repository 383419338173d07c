// The host's bank directory: the thread that fills it and the look-ups that the platform hands to a module.
// Reads the bank's file by itself, beside the bank's own connection; used by the client and the contract
// check.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <thread>

#include "platform/host_api.h"

namespace demohost {

/// The directory of "BANK_PDATA", and the thread that fills it from the bank's file. The thread holds the
/// mutex "_BankInfoLoader_" until the directory is full; a reader waits for the mutex. Numbers and names are
/// narrow text.
class BankDirectory {
 public:
  /// Starts the loader, and returns once it holds the mutex. The loader takes `delayMilliseconds` longer than
  /// it must. A file that can't be read leaves the directory empty.
  explicit BankDirectory(const std::filesystem::path& bank, int delayMilliseconds = 0);
  /// Waits for the loader.
  ~BankDirectory();
  BankDirectory(const BankDirectory&) = delete;
  BankDirectory& operator=(const BankDirectory&) = delete;

  /// The handle under which a module finds the directory.
  norvik_handle Handle() const { return handle_; }
  /// Has the names in traditional characters from here on, or as the bank's file has them. To be called by
  /// the thread that reads.
  void SetTraditional(bool on) { traditional_ = on; }

 private:
  /// top-level code, area, kind, number
  using Banks = std::map<std::string, std::string>;
  using Kinds = std::map<std::string, Banks>;
  using Areas = std::map<std::string, Kinds>;

  static const char* TopCode(void* context, std::uint32_t index);
  static int HasArea(void* context, const char* topCode, const char* area);
  static const char* BankName(void* context, const char* topCode, const char* area, const char* type,
                              const char* number);
  void Load(const std::filesystem::path& bank);
  const char* InCharacters(const std::string& name);

  std::map<std::string, Areas> regions_;
  bool traditional_ = false;
  std::map<std::string, std::string>
      traditionalNames_;  ///< the names that were asked for, by the name in the file
  norvik_handle mutex_;
  norvik_handle handle_;
  std::thread loader_;
};

}  // namespace demohost
