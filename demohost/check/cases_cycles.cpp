#include <string>

#include "demohost/check/cases.h"
#include "demohost/check/footprint.h"
#include "demohost/check/subject.h"

namespace demohost::check {
namespace {

constexpr int kCycles = 1000;
// Until here caches of Qt and of the loader may fill.
constexpr int kWarmUp = 200;
// Each of these cycles opens an item, the others only start the module.
constexpr int kOpenEvery = 10;
// Bytes a cycle by which memory may grow after the warm-up: a few small objects, since Qt keeps some for each
// screen that it has styled.
constexpr std::int64_t kAllowance = 256;

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
                    std::int64_t allowance) {
  run.Expect(after - before <= allowance, std::string(what) + " grew from " + std::to_string(before) +
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
  ExpectNoGrowth(run, "memory in use (bytes)", before.heap, after.heap, kAllowance * (kCycles - kWarmUp));
}

}  // namespace demohost::check
