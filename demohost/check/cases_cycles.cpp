#include <malloc.h>

#include <QApplication>
#include <QPixmapCache>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <string>

#include "demohost/check/cases.h"
#include "demohost/check/subject.h"

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace demohost::check {
namespace {

constexpr int kCycles = 1000;
// Up to this cycle the caches of Qt and of the loader may fill.
constexpr int kWarmUp = 200;
// Each of these cycles opens an item, the others only start the module.
constexpr int kOpenEvery = 10;
// Bytes by which memory may grow in each cycle after the warm-up: a few small objects, since Qt keeps some
// for each screen that it has styled.
constexpr std::int64_t kMaxGrowth = 256;

// What this process holds at a moment.
struct Footprint {
  std::int64_t heap;   // bytes in use of what malloc has handed out
  std::int64_t files;  // open descriptors
  std::int64_t threads;
  std::int64_t widgets;  // of Qt
};

std::int64_t HeapInUse() {
#if defined(__SANITIZE_ADDRESS__)
  return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
#else
  const struct mallinfo2 memory = mallinfo2();
  return static_cast<std::int64_t>(memory.uordblks + memory.hblkhd);
#endif
}

std::int64_t EntriesOf(const char* folder) {
  return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

Footprint Measure() {
  // Qt keeps pictures up to a limit of its own; that is no loss of memory.
  QPixmapCache::clear();
  return {HeapInUse(), EntriesOf("/proc/self/fd"), EntriesOf("/proc/self/task"),
          static_cast<std::int64_t>(QApplication::allWidgets().size())};
}

void Cycle(CaseRun& run, int number) {
  Subject subject(run);
  subject.Start(" in cycle " + std::to_string(number));
  const std::vector<std::string> items = subject.Items();
  if (number % kOpenEvery == 0 && !items.empty()) {
    subject.Pick(items[static_cast<std::size_t>(number / kOpenEvery) % items.size()]);
  }
  subject.End();
}

void ExpectNoGrowth(CaseRun& run, const char* what, std::int64_t before, std::int64_t after,
                    std::int64_t maxGrowth) {
  run.Expect(after - before <= maxGrowth, std::string(what) + " grew from " + std::to_string(before) +
                                              " to " + std::to_string(after) + " in " +
                                              std::to_string(kCycles - kWarmUp) + " cycles");
}

}  // namespace

void Cycles(CaseRun& run) {
  run.Host();
  Footprint before{};
  for (int number = 1; number <= kCycles; ++number) {
    Cycle(run, number);
    if (number == kWarmUp) before = Measure();
  }
  const Footprint after = Measure();
  ExpectNoGrowth(run, "the number of widgets", before.widgets, after.widgets, 0);
  ExpectNoGrowth(run, "the number of threads", before.threads, after.threads, 0);
  ExpectNoGrowth(run, "the number of open files", before.files, after.files, 0);
  ExpectNoGrowth(run, "memory in use (bytes)", before.heap, after.heap, kMaxGrowth * (kCycles - kWarmUp));
}

}  // namespace demohost::check
