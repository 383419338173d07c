#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace demohost::check {

enum class Outcome { kPassed, kFailed, kCrashed, kHung, kSkipped };
inline constexpr std::array<const char*, 5> kOutcomeNames = {"passed", "failed", "crashed", "hung",
                                                             "skipped"};

// What became of a case.
struct Judged {
  Outcome outcome;
  std::string seen;                // why it isn't passed, one line of UTF-8
  std::vector<std::string> items;  // of the module's menu, if the case reports them
};

// Starts this program once more with the arguments and waits for its end, `seconds` at most; then it is
// killed with whatever it has started. `report` is the file that it reports to. Quietly: what it writes to
// its output goes nowhere.
Judged RunInChild(const std::vector<std::string>& arguments, const std::filesystem::path& report, int seconds,
                  bool quietly);

}  // namespace demohost::check
