#include <dlfcn.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <unistd.h>
#include <QCoreApplication>
#include <QWidget>
#include <cstddef>
#include <cstdio>
#include <memory>

#include "tests/module/module_library.h"

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

// What the program holds of its allocator, in bytes, and how far both may grow in 900 lives: less than one
// small object for each, since the allocator's own books waver.
struct Memory {
  std::ptrdiff_t held;
  std::ptrdiff_t resident;
};

constexpr Memory kMostGrowth = {900 * 64, 2 << 20};

#if defined(__SANITIZE_ADDRESS__)
// Freed memory stays resident in the sanitizer's quarantine, so only what is held counts.
Memory MemoryNow() {
  return {static_cast<std::ptrdiff_t>(__sanitizer_get_current_allocated_bytes()), 0};
}
#else
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

// One life of the module, from loading to unloading.
void OneLife() {
  WindowedHost host;
  {
    const ModuleLibrary module(NORVIK_QRY_UNLOADABLE);
    module.InitModule(host.publicInformation);
    EXPECT_FALSE(module.Menu().empty());
    for (const char* item : {"ITEM6066", "ITEM6067", "ITEM6068"}) module.Pick(item);
    QCoreApplication::processEvents();
  }
  EXPECT_FALSE(IsLoaded(NORVIK_QRY_UNLOADABLE));
}

TEST(Unloading, LeavesTheCodeOfTheShippedLibraryMapped) {
  { const ModuleLibrary module(NORVIK_QRY); }
  EXPECT_TRUE(IsLoaded(NORVIK_QRY));
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
