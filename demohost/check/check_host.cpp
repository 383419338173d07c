#include "demohost/check/check_host.h"

#include <QApplication>
#include <algorithm>
#include <sstream>

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
      store_(folder / "config") {
  FillStore(store_, tables_, bank_.Accounts(), {folder / "images", SkinFolder(folder)});
  if (!options.language.empty()) {
    ChangeSetting(store_, kLanguageSetting, options.language);
  }
  OpenWindow();
  store_.SetHandle("BANK_PDATA", directory_.Handle());
  output_.printFolder = folder / "prints";
  for (const HostLibrary& library : kHostLibraries) {
    for (const norvik_ordinal& entry : library.table()) {
      functionNames_[entry.function] = "function " + std::to_string(entry.ordinal) + " of " + library.name;
    }
  }
  RegisterLibraries();
  const QWidgetList windows = QApplication::topLevelWidgets();
  windowsOfHost_.insert(windows.begin(), windows.end());
}

CheckHost::~CheckHost() {
  store_.onHandle = nullptr;
  CloseWindow();
}

void CheckHost::CloseWindow() {
  norvik_window_unregister(windowHandle_);
  windowHandle_ = 0;
  if (window_) windowsOfHost_.erase(&*window_);
  window_.reset();
}

void CheckHost::OpenWindow() {
  if (window_) return;
  window_.emplace();
  windowsOfHost_.insert(&*window_);
  windowHandle_ = norvik_window_register(&Procedure, this, &*window_);
  store_.SetHandle("APPMAINFORMHANDLE", windowHandle_);
}

void CheckHost::Called(void* function) const {
  const auto name = functionNames_.find(function);
  if (during && name != functionNames_.end()) during(name->second);
}

void CheckHost::RegisterLibraries(std::optional<MissingFunction> missing) {
  libraries_.reset();
  store_.onHandle = nullptr;
  libraries_.emplace(Services{.store = &store_,
                              .texts = &texts_,
                              .bank = &bank_,
                              .clock = &clock_,
                              .output = &output_,
                              .called = [this](void* function) { Called(function); }},
                     missing);
  store_.onHandle = [this](const std::string& key, std::uint32_t value) {
    if (value == 0) {
      formHandles_.erase(key);
    } else {
      formHandles_.insert(key);
    }
  };
}

std::vector<QWidget*> CheckHost::Windows() const {
  std::vector<QWidget*> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (windowsOfHost_.count(window) == 0) windows.push_back(window);
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
  auto* host = static_cast<CheckHost*>(context);
  ++host->told_[message];
  std::ostringstream place;
  place << "the message 0x" << std::uppercase << std::hex << message;
  if (host->during) host->during(place.str());
  return 0;
}

}  // namespace demohost::check
