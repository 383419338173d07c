#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "demohost/check/check_host.h"
#include "demohost/check/report.h"
#include "demohost/options.h"

namespace demohost::check {

// A case while it is played, in the process made for it.
class CaseRun {
 public:
  // item: the menu item that the case is about, in narrow text, if it is about one.
  CaseRun(const Options& options, std::string item, Report& report)
      : options_(options), item_(std::move(item)), report_(report) {}

  const std::filesystem::path& Module() const { return options_.check; }
  const std::string& Item() const { return item_; }
  // The host, made at its first use.
  CheckHost& Host();

  // From now on a modal window is no failure.
  void ExpectDialogs() { expects_dialogs_ = true; }
  bool ExpectsDialogs() const { return expects_dialogs_; }

  // Notes what is begun now; it is told if the process doesn't come back from it.
  void Step(const std::string& what) { report_.Step(what); }
  // Notes an item of the module's menu.
  void FoundItem(const std::string& item);
  // The case has failed with what was seen, in UTF-8. The process ends here: no more of a broken module runs.
  [[noreturn]] void Fail(const std::string& seen);
  void Expect(bool good, const std::string& seen) {
    if (!good) Fail(seen);
  }

 private:
  const Options& options_;
  std::string item_;
  Report& report_;
  bool expects_dialogs_ = false;
  std::optional<CheckHost> host_;
};

// Narrow text of a module in quotes, for a report.
std::string Quoted(const std::string& narrow);

// Runs what is waiting in the event queue, deferred deletions included.
void Settle();

}  // namespace demohost::check
