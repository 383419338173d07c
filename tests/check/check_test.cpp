#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Line {
  std::string outcome;
  std::string seen;  // the line below it; empty for a case that passed
};

// What `demohost --check` has written, and how it ended.
struct Checked {
  int status = -1;
  std::map<std::string, Line> cases;
  std::string lastLine;
  std::string text;
};

Checked Check(const std::string& module, const std::string& more = {}) {
  const std::string command =
      std::string(DEMOHOST) + " --check '" + module + "' --share '" DEMOHOST_SHARE "' " + more + " 2>&1";
  Checked checked;
  FILE* output = popen(command.c_str(), "r");
  std::array<char, 4096> piece;
  while (std::fgets(piece.data(), piece.size(), output) != nullptr) checked.text += piece.data();
  const int status = pclose(output);
  checked.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  std::istringstream lines(checked.text);
  std::string name;
  for (std::string line; std::getline(lines, line); checked.lastLine = line) {
    if (line.rfind("  ", 0) == 0) {
      checked.cases[name].seen = line.substr(line.find_first_not_of(' '));
    } else {
      std::string outcome;
      std::istringstream(line) >> name >> outcome;
      checked.cases[name].outcome = outcome;
    }
  }
  return checked;
}

std::string Broken(const std::string& fault) {
  return std::string(BROKEN_MODULES) + "/broken_" + fault + ".so";
}

// A module with one fault, the case that finds it, and a piece of what that case reports.
struct Fault {
  const char* fault;
  const char* finder;
  const char* outcome;
  const char* seen;
};

void PrintTo(const Fault& fault, std::ostream* out) {
  *out << fault.fault;
}

class BrokenModule : public testing::TestWithParam<Fault> {};

TEST_P(BrokenModule, IsFoundByItsCase) {
  const Fault& fault = GetParam();
  const bool hangs = fault.outcome == std::string("hung");
  const Checked checked =
      Check(Broken(fault.fault), std::string("--case ") + fault.finder + (hangs ? " --limit 6" : ""));
  const Line line = checked.cases.count(fault.finder) != 0 ? checked.cases.at(fault.finder) : Line();
  EXPECT_EQ(line.outcome, fault.outcome) << checked.text;
  EXPECT_NE(line.seen.find(fault.seen), std::string::npos) << checked.text;
  EXPECT_EQ(checked.status, 1);
  EXPECT_EQ(checked.lastLine.rfind("1 cases: 0 passed", 0), 0u) << checked.text;
}

INSTANTIATE_TEST_SUITE_P(
    Check, BrokenModule,
    testing::Values(
        Fault{"load_crash", "load", "crashed", "Aborted in loading"},
        Fault{"missing_export", "exports", "failed", "it has no FreeBuff"},
        Fault{"missing_export", "start", "failed", "there is no export FreeBuff"},
        Fault{"sixth_export", "exports", "failed", "it has also Sixth"},
        Fault{"start_result", "start", "failed", "it returned 7"},
        Fault{"start_throws", "start", "failed", "it threw int"},
        Fault{"keeps_buffer", "start", "failed", "1 buffers of the host"},
        Fault{"release_exits", "start", "crashed", "ended itself with status 0 in Release"},
        Fault{"missing_foreign", "missing-public-information", "failed",
              "without function 2 of public information: it threw std::runtime_error with \"function 2\""},
        Fault{"missing_wrong_key", "missing-translation", "failed", "function 7 of translation"},
        Fault{"missing_foreign", "missing-errors", "failed", "std::runtime_error"},
        Fault{"missing_swallowed", "missing-print", "failed",
              "InitModule without function 4 of print: it returned"},
        Fault{"missing_foreign", "missing-secure-communication", "failed", "std::runtime_error"},
        Fault{"missing_crash", "missing-spreadsheet", "crashed",
              "Aborted in InitModule without function 10 of spreadsheet"},
        Fault{"menu_no_xml", "menu-text", "failed", "isn't an iniplus: \"ITEM1;ITEM2\""},
        Fault{"menu_other_section", "menu-text", "failed", "no section MENU"},
        Fault{"menu_shared", "menu-own-buffers", "failed", "one buffer"},
        Fault{"menu_ignores_host_buffer", "menu-host-buffer", "failed", "another buffer"},
        Fault{"menu_overrun", "menu-host-buffer", "failed", "more or less"},
        Fault{"free_null_crash", "free-null", "crashed", "FreeBuff of null"},
        Fault{"unstarted_pick_ignored", "pick-unstarted", "failed", "it returned"},
        Fault{"request_swallowed", "bad-request", "failed", "it returned"},
        Fault{"request_hangs", "bad-request", "hung", "no end after 6 s in CallFunc"},
        Fault{"unknown_opens", "unknown-item", "failed", "TfrmFirst"},
        Fault{"unknown_throws", "unknown-item", "failed", "ET10057"},
        Fault{"second_window", "open-ITEM1", "failed", "after a pick of the open item 2 windows"},
        Fault{"replaced_window", "open-ITEM2", "failed", "another window"},
        Fault{"no_reopening", "open-ITEM1", "failed", "after a pick of the closed item 0 windows"},
        Fault{"modal_message", "open-ITEM1", "failed", "in the way: NorvikQry no columns"},
        Fault{"open_silent", "open-ITEM1", "failed", "the form was shown"},
        Fault{"close_silent", "open-ITEM1", "failed", "the form was closed"},
        Fault{"close_keeps_window", "open-ITEM1", "failed", "after its closing"},
        Fault{"handle_stays", "open-ITEM1", "failed", "still has a handle"},
        Fault{"release_unstarted_crash", "release-unstarted", "crashed", "Aborted in Release"},
        Fault{"leaves_window_of_failed_start", "release-failed-start", "failed", "left a window"},
        Fault{"leaves_open_window", "release-open", "failed", "left a window \"Tfrm"},
        Fault{"leaves_closed_window", "release-closed", "failed", "left a window \"Tfrm"},
        Fault{"release_twice_crash", "release-twice", "crashed", "Aborted in Release"},
        Fault{"goes_on_after_release", "call-in-pick-ITEM1", "failed",
              "with Release in function 122 of public information: what was ended called function 123"},
        Fault{"falls_after_dialog", "call-in-dialog-ITEM2", "crashed", "Aborted in"},
        Fault{"loses_memory", "cycles", "failed", "memory in use"},
        Fault{"loses_files", "cycles", "failed", "open files"},
        Fault{"loses_threads", "cycles", "failed", "threads"}));

void ExpectAllPassed(const Checked& checked, std::size_t items) {
  EXPECT_EQ(checked.status, 0) << checked.text;
  std::size_t opened = 0;
  for (const auto& [name, line] : checked.cases) {
    if (name.rfind("open-", 0) == 0) ++opened;
  }
  EXPECT_EQ(opened, items) << checked.text;
  const std::string all = std::to_string(24 + 5 * items);
  EXPECT_EQ(checked.lastLine, all + " cases: " + all + " passed, 0 failed, 0 crashed, 0 hung, 0 skipped")
      << checked.text;
}

TEST(Check, PassesForNorvikQry) {
  const Checked checked = Check(NORVIK_QRY);
  ExpectAllPassed(checked, 3);
  EXPECT_EQ(checked.cases.count("open-ITEM6066"), 1u);
}

TEST(Check, PassesForASmallSoundModule) {
  ExpectAllPassed(Check(Broken("none")), 2);
}

TEST(Check, SkipsWhatNeedsACaseThatFailed) {
  const Checked checked = Check(DEMOHOST_SHARE "/texts/en.txt");
  EXPECT_EQ(checked.status, 1);
  EXPECT_EQ(checked.cases.at("load").outcome, "failed");
  EXPECT_EQ(checked.cases.at("exports").seen, "it needs load");
  EXPECT_EQ(checked.cases.at("open-items").seen, "the menu has no item");
  EXPECT_EQ(checked.lastLine, "29 cases: 0 passed, 1 failed, 0 crashed, 0 hung, 28 skipped");
}

TEST(Check, OpensNoItemOfAnEmptyMenu) {
  const Checked checked = Check(Broken("menu_empty"));
  EXPECT_EQ(checked.status, 0) << checked.text;
  EXPECT_EQ(checked.cases.at("open-items").outcome, "skipped");
  EXPECT_EQ(checked.cases.at("release-open").outcome, "passed");
}

TEST(Check, RefusesACaseThatItDoesNotHave) {
  for (const char* name : {"Load", "open-", "open"}) {
    const Checked checked = Check(NORVIK_QRY, std::string("--case ") + name);
    EXPECT_EQ(checked.status, 2) << name;
    EXPECT_EQ(checked.text, std::string("demohost: the check has no case \"") + name + "\"\n");
  }
}

}  // namespace
