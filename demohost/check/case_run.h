// What a case of the contract check has in hand while it is played: the host, its report, and the way to
// fail. Used by the cases and by subject.h and moments.h; check.cpp makes it, in the process of the case.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "demohost/check/check_host.h"
#include "demohost/check/report.h"
#include "demohost/options.h"

namespace demohost::check {

/// A case while it is played, in the process made for it.
class CaseRun {
 public:
  /// `item` is the menu item that the case is about, in narrow text; empty if it is about none. Options and
  /// report outlive the object.
  CaseRun(const Options& options, std::string item, Report& report)
      : options_(options), item_(std::move(item)), report_(report) {}

  /// The file of the module under check.
  const std::filesystem::path& Module() const { return options_.check; }
  /// The menu item that the case is about, or empty.
  const std::string& Item() const { return item_; }
  /// The host, made at its first use.
  CheckHost& Host();

  /// From now on a modal window is no failure.
  void ExpectDialogs() { expectsDialogs_ = true; }
  /// True after ExpectDialogs.
  bool ExpectsDialogs() const { return expectsDialogs_; }

  /// Notes what is begun now; the report names it if the process doesn't return from it.
  void Step(const std::string& what) { report_.Step(what); }
  /// Notes an item of the module's menu.
  void FoundItem(const std::string& item);
  /// Fails the case with what was seen, in UTF-8, and ends the process: no more of a broken module runs.
  [[noreturn]] void Fail(const std::string& seen);
  /// Fails the case unless `good`.
  void Expect(bool good, const std::string& seen) {
    if (!good) Fail(seen);
  }

 private:
  const Options& options_;
  std::string item_;
  Report& report_;
  bool expectsDialogs_ = false;
  std::optional<CheckHost> host_;
};

/// Narrow text of a module in quotes, for a report.
std::string Quoted(const std::string& narrow);

/// Runs what is waiting in the event queue, deferred deletions included.
void Settle();

}  // namespace demohost::check
