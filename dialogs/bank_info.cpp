#include "dialogs/bank_info.h"

#include <cstdint>
#include <optional>

#include "dialogs/busy.h"
#include "host/pub_info.h"
#include "platform/bank_directory.h"
#include "platform/life_ended.h"

namespace {

constexpr const char* kLoaderMutex = "_BankInfoLoader_";
constexpr std::size_t kMinNumberSize = 8;
constexpr std::uint32_t kMaxTopCodes = 1000000;  // bounds the search in a directory without end

// The directory as it is asked: `closed` turns true when the host ends the life from inside one of its
// functions.
class Directory {
 public:
  Directory(const norvik_bank_directory& functions, const bool& closed)
      : functions_(functions), closed_(closed) {}

  // The first top-level code, in key order, that has the area; nothing if none has.
  std::optional<std::string> TopCodeOf(const std::string& area) const {
    for (std::uint32_t i = 0; i < kMaxTopCodes; ++i) {
      const char* const code = Checked(functions_.top_code(functions_.context, i));
      if (code == nullptr) return std::nullopt;
      std::string copy = code;
      if (Checked(functions_.has_area(functions_.context, copy.c_str(), area.c_str())) != 0) return copy;
    }
    return std::nullopt;
  }

  std::string BankName(const std::string& code, const std::string& area, const std::string& type,
                       const std::string& number) const {
    const char* const name = Checked(
        functions_.bank_name(functions_.context, code.c_str(), area.c_str(), type.c_str(), number.c_str()));
    return name != nullptr ? name : std::string();
  }

 private:
  template <class Result>
  Result Checked(Result result) const {
    if (closed_) throw norvik::LifeEnded();
    return result;
  }

  const norvik_bank_directory& functions_;
  const bool& closed_;
};

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
  if (closed_) throw norvik::LifeEnded();
  EnsureLoaded();
  const auto directory = norvik::FindBankDirectory(m_directory);
  const bool readable = m_loaded || m_mutex == 0;
  if (!directory || !readable || number.size() < kMinNumberSize || number.find('\0') != std::string::npos) {
    return {};
  }
  const std::string area = number.substr(3, 4);
  const Directory asked(*directory, closed_);
  const std::optional<std::string> code = asked.TopCodeOf(area);
  return code ? asked.BankName(*code, area, number.substr(0, 3), number) : std::string();
}
