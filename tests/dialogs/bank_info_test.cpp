#include "dialogs/bank_info.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <map>
#include <thread>

#include "dialogs/busy.h"
#include "dialogs/busy_form.h"
#include "tests/support/form_host.h"

namespace {

using Level4 = std::map<std::string, std::string>;
using Level3 = std::map<std::string, Level4>;
using Level2 = std::map<std::string, Level3>;
using Tree = std::map<std::string, Level2>;

std::atomic<bool> g_loading = false;
std::atomic<int> g_readWhileLoading = 0;

const Tree& TreeOf(void* context) {
  if (g_loading) ++g_readWhileLoading;
  return *static_cast<const Tree*>(context);
}

const char* TopCode(void* context, std::uint32_t index) {
  const Tree& tree = TreeOf(context);
  return index < tree.size() ? std::next(tree.begin(), index)->first.c_str() : nullptr;
}

int HasArea(void* context, const char* code, const char* area) {
  const Tree& tree = TreeOf(context);
  const auto found = tree.find(code);
  return found != tree.end() && found->second.contains(area) ? 1 : 0;
}

template <class Map>
const typename Map::mapped_type* Find(const Map* map, const char* key) {
  if (map == nullptr) return nullptr;
  const auto found = map->find(key);
  return found == map->end() ? nullptr : &found->second;
}

const char* BankName(void* context, const char* code, const char* area, const char* type,
                     const char* number) {
  const std::string* name = Find(Find(Find(Find(&TreeOf(context), code), area), type), number);
  return name != nullptr ? name->c_str() : nullptr;
}

// The host's loader: holds the mutex from the start until it is ended, with or without releasing it.
class Loader {
 public:
  explicit Loader(bool releases = true) {
    std::promise<void> held;
    thread_ = std::thread([this, releases, &held] {
      mutex_ = norvik_mutex_create("_BankInfoLoader_");
      norvik_mutex_wait(mutex_);
      g_loading = true;
      held.set_value();
      end_.get_future().wait();
      g_loading = false;
      if (releases) norvik_mutex_release(mutex_);
    });
    held.get_future().wait();
  }
  void End() {
    end_.set_value();
    thread_.join();
  }
  ~Loader() { norvik_mutex_close(mutex_); }
  norvik_handle Mutex() const { return mutex_; }

 private:
  norvik_handle mutex_ = 0;
  std::promise<void> end_;
  std::thread thread_;
};

std::future<void> EndSoon(Loader& loader) {
  return std::async(std::launch::async, [&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    loader.End();
  });
}

struct BankInfo : testing::Test {
  BankInfo() {
    g_readWhileLoading = 0;
    const norvik_bank_directory functions = {&tree, &TopCode, &HasArea, &BankName};
    directory = norvik_bank_directory_register(&functions);
    host.libraries.handles["BANK_PDATA"] = directory;
  }
  ~BankInfo() override { norvik_bank_directory_unregister(directory); }

  Tree tree = {{"A", {{"1000", {{"102", {{"102100000000", "First"}, {"10210000", "Eight"}}}}}}},
               {"B",
                {{"1000", {{"103", {{"103100000000", "Hidden by A"}}}}},
                 {"2000", {{"103", {{"103200000000", "Second"}}}}}}}};
  FormHost host;
  norvik_handle directory = 0;
};

TEST_F(BankInfo, WalksTheFourLevels) {
  const struct {
    std::string number;
    const char* name;
  } cases[] = {{"102100000000", "First"},
               {"10210000", "Eight"},       // exactly eight characters
               {"103200000000", "Second"},  // its area stands under B alone
               {"103100000000", ""},        // the first code with the area decides
               {"102100000001", ""},        // number unknown
               {"104100000000", ""},        // type unknown
               {"102300000000", ""},        // area unknown
               {"1021000", ""},             // seven characters
               {"", ""},
               {std::string("102100000000\0", 13), ""},
               {std::string("10210000\0\0", 10), ""}};
  TBankInfo info;
  for (const auto& row : cases) EXPECT_EQ(info.GetBankName(row.number), row.name) << row.number;
}

TEST_F(BankInfo, WithoutADirectoryThereIsNoName) {
  host.libraries.handles["BANK_PDATA"] = 0;
  EXPECT_EQ(TBankInfo().GetBankName("102100000000"), "");
  host.libraries.handles["BANK_PDATA"] = host.libraries.handles["APPMAINFORMHANDLE"];
  EXPECT_EQ(TBankInfo().GetBankName("102100000000"), "");
}

TEST_F(BankInfo, ADirectoryWithoutEndIsLeft) {
  const norvik_bank_directory endless = {
      nullptr, [](void*, std::uint32_t) { return "A"; }, [](void*, const char*, const char*) { return 0; },
      [](void*, const char*, const char*, const char*, const char*) { return "never"; }};
  const norvik_handle handle = norvik_bank_directory_register(&endless);
  host.libraries.handles["BANK_PDATA"] = handle;
  EXPECT_EQ(TBankInfo().GetBankName("102100000000"), "");
  norvik_bank_directory_unregister(handle);
}

TEST_F(BankInfo, TheFirstReaderWaitsForTheLoader) {
  Loader loader;
  TBankInfo info;
  const auto ending = EndSoon(loader);
  EXPECT_EQ(info.GetBankName("102100000000"), "First");
  EXPECT_EQ(g_readWhileLoading, 0);
  EXPECT_EQ(ShownForm(TWaitForm::staticMetaObject), nullptr);
  // Once loaded there is no further wait, not even for a loader that holds the mutex again.
  Loader again;
  EXPECT_EQ(info.GetBankName("103200000000"), "Second");
  again.End();
}

TEST_F(BankInfo, ALoaderThatStartsLateIsWaitedFor) {
  TBankInfo info;
  EXPECT_EQ(info.GetBankName("102100000000"), "First");  // no mutex: nothing is filling
  g_readWhileLoading = 0;
  Loader loader;
  const auto ending = EndSoon(loader);
  EXPECT_EQ(info.GetBankName("103200000000"), "Second");
  EXPECT_EQ(g_readWhileLoading, 0);
}

TEST_F(BankInfo, ALoaderThatDiedLeavesTheDirectoryAsItStands) {
  Loader loader(false);
  loader.End();
  TBankInfo info;
  EXPECT_EQ(info.GetBankName("102100000000"), "First");
  EXPECT_NE(norvik_mutex_release(loader.Mutex()), 0);  // it was not given back
}

}  // namespace
