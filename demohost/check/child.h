// Plays a case in a process of its own and returns how it ended, whatever the module does there. Used by
// check.cpp; what the child reports comes through report.h.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace demohost::check {

/// The five ways in which a case ends.
enum class Outcome { kPassed, kFailed, kCrashed, kHung, kSkipped };
/// Their names, in that order.
inline constexpr std::array<const char*, 5> kOutcomeNames = {"passed", "failed", "crashed", "hung",
                                                             "skipped"};

/// What became of a case.
struct Judged {
  Outcome outcome;
  std::string seen;                ///< why it isn't passed, one line of UTF-8
  std::vector<std::string> items;  ///< of the module's menu, if the case reports them
};

/// Starts this program once more with the arguments and waits at most `seconds` for its end; then kills it
/// with whatever it has started. `report` is the file that it reports to. Where `quietly` is true, its output
/// is discarded. Throws std::system_error where the process can't be started.
Judged RunInChild(const std::vector<std::string>& arguments, const std::filesystem::path& report, int seconds,
                  bool quietly);

}  // namespace demohost::check
