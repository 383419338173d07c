#include "platform/handle_table.h"

#include <mutex>
#include <unordered_map>
#include <utility>

namespace norvik {
namespace {

// Small numbers are never handles, so that a count or a flag that strays in names nothing.
constexpr norvik_handle kFirstHandle = 0x10000;

struct Table {
  std::mutex guard;
  std::unordered_map<norvik_handle, std::shared_ptr<HandleObject>> objects;
  norvik_handle next = kFirstHandle;
};

// Lives as long as the process: threads that end after main still give back their mutexes.
Table& TheTable() {
  static Table* const table = new Table;
  return *table;
}

}  // namespace

norvik_handle PutHandle(std::shared_ptr<HandleObject> object) noexcept {
  if (!object) return 0;
  try {
    Table& table = TheTable();
    const std::lock_guard lock(table.guard);
    while (table.next < kFirstHandle || table.objects.contains(table.next)) ++table.next;
    const norvik_handle handle = table.next;
    table.objects.emplace(handle, std::move(object));
    ++table.next;
    return handle;
  } catch (const std::exception&) {
    return 0;
  }
}

std::shared_ptr<HandleObject> FindHandle(norvik_handle handle) noexcept {
  Table& table = TheTable();
  const std::lock_guard lock(table.guard);
  const auto found = table.objects.find(handle);
  return found == table.objects.end() ? nullptr : found->second;
}

std::shared_ptr<HandleObject> TakeHandle(norvik_handle handle, const HandleObject* object) noexcept {
  Table& table = TheTable();
  const std::lock_guard lock(table.guard);
  const auto found = table.objects.find(handle);
  if (found == table.objects.end() || found->second.get() != object) return nullptr;
  auto taken = std::move(found->second);
  table.objects.erase(found);
  return taken;
}

}  // namespace norvik
