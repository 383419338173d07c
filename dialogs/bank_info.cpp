#include "dialogs/bank_info.h"

#include <cstdint>

#include "dialogs/busy.h"
#include "host/pub_info.h"
#include "platform/bank_directory.h"

namespace {

constexpr const char* kLoaderMutex = "_BankInfoLoader_";
constexpr std::size_t kShortestNumber = 8;
constexpr std::uint32_t kMostTopCodes = 1000000;  // ends the search in a directory that never ends

// The first top-level code, in key order, that has the area; null if none has.
const char* FindTopCode(const norvik_bank_directory& directory, const std::string& area) {
  for (std::uint32_t i = 0; i < kMostTopCodes; ++i) {
    const char* code = directory.top_code(directory.context, i);
    if (code == nullptr) return nullptr;
    if (directory.has_area(directory.context, code, area.c_str()) != 0) return code;
  }
  return nullptr;
}

}  // namespace

TBankInfo::TBankInfo()
    : m_directory(g_pPubInfo->GetHandle("BANK_PDATA")), m_mutex(norvik_mutex_open(kLoaderMutex)) {}

TBankInfo::~TBankInfo() {
  norvik_mutex_close(m_mutex);
}

void TBankInfo::EnsureLoaded() {
  if (m_loaded) return;
  if (m_mutex == 0) m_mutex = norvik_mutex_open(kLoaderMutex);
  if (m_mutex == 0) return;
  ShowWait(nullptr);
  const std::uint32_t result = norvik_mutex_wait(m_mutex);
  if (result == NORVIK_MUTEX_ACQUIRED) norvik_mutex_release(m_mutex);
  HideWait();
  m_loaded = result != NORVIK_MUTEX_FAILED;
}

std::string TBankInfo::GetBankName(const std::string& number) {
  EnsureLoaded();
  const auto directory = norvik::FindBankDirectory(m_directory);
  const bool readable = m_loaded || m_mutex == 0;
  if (!directory || !readable || number.size() < kShortestNumber || number.find('\0') != std::string::npos) {
    return {};
  }
  const std::string type = number.substr(0, 3);
  const std::string area = number.substr(3, 4);
  const char* found = FindTopCode(*directory, area);
  if (found == nullptr) return {};
  const std::string code = found;
  const char* name =
      directory->bank_name(directory->context, code.c_str(), area.c_str(), type.c_str(), number.c_str());
  return name != nullptr ? name : std::string();
}
