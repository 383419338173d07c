#include "demohost/bank_directory.h"

#include <chrono>
#include <future>
#include <iterator>

#include "demohost/bank/database.h"
#include "demohost/libraries/chinese.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

constexpr const char* kMutex = "_BankInfoLoader_";

// The entry under a key, or null.
template <class Map>
const typename Map::mapped_type* Find(const Map& map, const char* key) {
  const auto found = map.find(key);
  return found == map.end() ? nullptr : &found->second;
}

}  // namespace

BankDirectory::BankDirectory(const std::filesystem::path& bank, int delayMilliseconds)
    : mutex_(norvik_mutex_create(kMutex)) {
  const norvik_bank_directory directory = {this, &TopCode, &HasArea, &BankName};
  handle_ = norvik_bank_directory_register(&directory);
  std::promise<void> held;
  loader_ = std::thread([this, bank, delayMilliseconds, &held] {
    norvik_mutex_wait(mutex_);
    held.set_value();
    std::this_thread::sleep_for(std::chrono::milliseconds(delayMilliseconds));
    try {
      Load(bank);
    } catch (const DatabaseError&) {
      // A directory that can't be filled knows fewer banks; their names stay empty.
    }
    norvik_mutex_release(mutex_);
  });
  held.get_future().wait();
}

BankDirectory::~BankDirectory() {
  loader_.join();
  norvik_bank_directory_unregister(handle_);
  norvik_mutex_close(mutex_);
}

void BankDirectory::Load(const std::filesystem::path& bank) {
  Database database(bank, false);
  Statement banks = database.Prepare("SELECT NUMBER, NAME FROM bank");
  while (banks.Step()) {
    const std::string number(banks.Text(0));
    if (number.size() < 8) continue;
    // The first digit of the area is the region of the country, which is the top level.
    const std::string area = number.substr(3, 4);
    regions_[area.substr(0, 1)][area][number.substr(0, 3)][number] =
        norvik::AnsiFromUtf8(std::string(banks.Text(1)));
  }
}

const char* BankDirectory::TopCode(void* context, std::uint32_t index) {
  const auto& regions = static_cast<BankDirectory*>(context)->regions_;
  if (index >= regions.size()) return nullptr;
  return std::next(regions.begin(), index)->first.c_str();
}

int BankDirectory::HasArea(void* context, const char* topCode, const char* area) {
  const Areas* areas = Find(static_cast<BankDirectory*>(context)->regions_, topCode);
  return areas != nullptr && areas->count(area) != 0 ? 1 : 0;
}

const char* BankDirectory::BankName(void* context, const char* topCode, const char* area, const char* type,
                                    const char* number) {
  auto* directory = static_cast<BankDirectory*>(context);
  const Areas* areas = Find(directory->regions_, topCode);
  const Kinds* kinds = areas == nullptr ? nullptr : Find(*areas, area);
  const Banks* banks = kinds == nullptr ? nullptr : Find(*kinds, type);
  const std::string* name = banks == nullptr ? nullptr : Find(*banks, number);
  return name == nullptr ? nullptr : directory->InCharacters(*name);
}

const char* BankDirectory::InCharacters(const std::string& name) {
  if (!traditional_) return name.c_str();
  std::string& other = traditionalNames_[name];
  if (other.empty()) other = TraditionalFromSimplified(name);
  return other.c_str();
}

}  // namespace demohost
