#include <dlfcn.h>
#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QWidget>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/module_library.h"

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

// What the program holds of its allocator, and of the system, in bytes.
struct Memory {
  std::ptrdiff_t held;
  std::ptrdiff_t resident;
};

// How far both may grow in 900 lives.
#if defined(__SANITIZE_ADDRESS__)
// Here the C library's list of exit functions grows by some 600 bytes at each load, also of a library that is
// loaded and never called; a lost object is found by the leak check at the end. Freed memory stays resident
// in quarantine.
constexpr Memory kMostGrowth = {900 * 1024, 1};

Memory MemoryNow() {
  return {static_cast<std::ptrdiff_t>(__sanitizer_get_current_allocated_bytes()), 0};
}
#else
// Less than one small object for each life; the allocator's own books waver.
constexpr Memory kMostGrowth = {900 * 64, 2 << 20};

std::ptrdiff_t ResidentBytes() {
  long total = 0;
  long resident = 0;
  const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen("/proc/self/statm", "r"), std::fclose);
  if (std::fscanf(file.get(), "%ld %ld", &total, &resident) != 2) return 0;
  return resident * sysconf(_SC_PAGESIZE);
}

Memory MemoryNow() {
  const struct mallinfo2 info = mallinfo2();
  return {static_cast<std::ptrdiff_t>(info.uordblks + info.hblkhd), ResidentBytes()};
}
#endif

bool IsLoaded(const char* path) {
  void* const library = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
  if (library) dlclose(library);
  return library;
}

// One life of the module, from loading to unloading, with a query whose rows are in the list to the end.
// `once` runs when it is loaded.
void OneLife(const std::function<void()>& once = [] {}) {
  WindowedHost host;
  host.OfferBills();
  {
    const ModuleLibrary module(NORVIK_QRY_UNLOADABLE);
    once();
    module.InitModule(host.publicInformation);
    EXPECT_FALSE(module.Menu().empty());
    for (const char* item : {"ITEM6066", "ITEM6067", "ITEM6068"}) module.Pick(item);
    QWidget* const screen = WindowOf("TfrmNorvikQry");
    ASSERT_NE(screen, nullptr);
    screen->findChild<QComboBox*>(QString::fromLatin1("m_cbxAcc"))->setCurrentIndex(1);
    screen->findChild<QAbstractButton*>(QString::fromLatin1("m_spdQuery"))->click();
    const auto* list = screen->findChild<QAbstractItemView*>(QString::fromLatin1("m_lvMain"));
    EXPECT_EQ(list->model()->rowCount(), 2);
    QCoreApplication::processEvents();
  }
  std::vector<std::string> codes;
  for (const auto& call : host.CallsOf(fakehost::Library::kSafeCom, 5)) codes.push_back(call.arguments[0]);
  EXPECT_EQ(codes, (std::vector<std::string>{"EBBADQAH", "EBBADQAH", "EBBADQDB"}));
  EXPECT_EQ(host.given, host.released);
  EXPECT_FALSE(IsLoaded(NORVIK_QRY_UNLOADABLE));
}

TEST(Unloading, LeavesTheCodeOfTheShippedLibraryMapped) {
  { const ModuleLibrary module(NORVIK_QRY); }
  EXPECT_TRUE(IsLoaded(NORVIK_QRY));
}

// Where the library's parts lie, from the first to the end of the last.
std::pair<std::uintptr_t, std::uintptr_t> Place(const std::string& path) {
  std::pair<std::uintptr_t, std::uintptr_t> place{UINTPTR_MAX, 0};
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
    if (!line.ends_with(path) || std::sscanf(line.c_str(), "%lx-%lx", &begin, &end) != 2) continue;
    place = {std::min(place.first, begin), std::max(place.second, end)};
  }
  return place;
}

// Nothing outside goes back to where the library was: there is no memory there in the next life.
TEST(Unloading, LeavesNoAddressOfTheLibraryBehind) {
  for (int life = 0; life < 5; ++life) {
    void* const library = dlopen(NORVIK_QRY_UNLOADABLE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr);
    const auto [begin, end] = Place(NORVIK_QRY_UNLOADABLE);
    ASSERT_LT(begin, end);
    OneLife([&] { dlclose(library); });
    void* const taken = mmap(reinterpret_cast<void*>(begin), end - begin, PROT_NONE,
                             MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
    EXPECT_NE(taken, MAP_FAILED);
  }
}

TEST(Unloading, AThousandTimesInOneProcessHoldsNoMemory) {
  for (int life = 0; life < 100; ++life) OneLife();
  const Memory before = MemoryNow();
  for (int life = 100; life < 1000 && !HasFailure(); ++life) OneLife();
  const Memory after = MemoryNow();
  EXPECT_LT(after.held - before.held, kMostGrowth.held) << "held after 100 lives: " << before.held;
  EXPECT_LT(after.resident - before.resident, kMostGrowth.resident);
  // The live QApplication works on after the module has gone.
  QWidget widget;
  widget.show();
  QCoreApplication::processEvents();
}

}  // namespace
