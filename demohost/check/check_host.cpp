#include "demohost/check/check_host.h"

#include <QApplication>
#include <algorithm>

#include "demohost/bank/seed.h"
#include "demohost/skins.h"

namespace demohost::check {
namespace {

// No case needs many.
constexpr std::int64_t kBills = 20;

std::filesystem::path BankFile(const std::filesystem::path& folder) {
  return folder / "bank.sqlite";
}

std::filesystem::path SkinFolder(const std::filesystem::path& folder) {
  return folder / "skins";
}

BankPlan Plan(const Tables& tables) {
  return {kBills, kBankDay, CodesOf(tables)};
}

}  // namespace

void PrepareFolder(const Options& options, const std::filesystem::path& folder) {
  OpenBank(BankFile(folder), Plan(ReadTables(options.share)));
  PackSkins(options.share / "skins", SkinFolder(folder));
  std::filesystem::create_directories(folder / "images");
}

CheckHost::CheckHost(const Options& options, const std::filesystem::path& folder)
    : texts_(options.share / "texts"),
      tables_(ReadTables(options.share)),
      clock_(kBankDay),
      bank_(OpenBank(BankFile(folder), Plan(tables_)), kBankDay),
      directory_(BankFile(folder)),
      store_(folder / "config"),
      window_handle_(norvik_window_register(&Procedure, this, &window_)) {
  FillStore(store_, tables_, bank_.Accounts(), {folder / "images", SkinFolder(folder)});
  if (!options.language.empty()) {
    store_.SetIniValue("SYSCONFIG_DATA", "APPLICATION.LANG", "Language", options.language);
  }
  store_.SetHandle("APPMAINFORMHANDLE", window_handle_);
  store_.SetHandle("BANK_PDATA", directory_.Handle());
  output_.print_folder = folder / "prints";
  RegisterLibraries();
  const QWidgetList windows = QApplication::topLevelWidgets();
  windows_of_host_.insert(windows.begin(), windows.end());
}

CheckHost::~CheckHost() {
  store_.on_handle = nullptr;
  norvik_window_unregister(window_handle_);
}

void CheckHost::RegisterLibraries(std::optional<MissingFunction> missing) {
  libraries_.reset();
  store_.on_handle = nullptr;
  libraries_.emplace(Services{&store_, &texts_, &bank_, &clock_, &output_, 0, {}}, missing);
  store_.on_handle = [this](const std::string& key, std::uint32_t value) {
    if (value == 0) {
      form_handles_.erase(key);
    } else {
      form_handles_.insert(key);
    }
  };
}

std::vector<QWidget*> CheckHost::Windows() const {
  std::vector<QWidget*> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (windows_of_host_.count(window) == 0) windows.push_back(window);
  }
  return windows;
}

std::vector<QWidget*> CheckHost::ShownWindows() const {
  std::vector<QWidget*> windows = Windows();
  std::erase_if(windows, [](const QWidget* window) { return !window->isVisible(); });
  return windows;
}

int CheckHost::Told(std::uint32_t message) const {
  const auto found = told_.find(message);
  return found == told_.end() ? 0 : found->second;
}

intptr_t CheckHost::Procedure(void* context, uint32_t message, uintptr_t, intptr_t) {
  ++static_cast<CheckHost*>(context)->told_[message];
  return 0;
}

}  // namespace demohost::check
