// Plays scenarios against the built module while the host fails at one of its calls, once or from there on,
// and then each whole with a host that is well. `torture --help` has the options; the last lines have the
// figures.
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <random>

#include "tests/torture/stage.h"

namespace {

struct Scenario {
  const char* name;
  std::string moves;
  bool leavesTraces = false;  // in a life: the next play has another outcome
};

const std::string kBills = "start pick:6 m_spdQuery ";
const std::string kLoans = "start pick:7 m_dtStartDate=20260301 m_dtEndDate=20260331 m_spdQuery ";
const std::string kDetails = "start pick:8 m_dtStartDate=20260301 m_dtEndDate=20260331 m_spdQuery ";
const Scenario kScenarios[] = {
    {"start_and_end", "start release start pick:8 release start"},
    {"repository", kBills + "tick:1 m_btnTicketInfo"},
    {"loans", kLoans + "tick:1 m_btnTicketInfo"},
    {"details", kDetails + "tick:1 m_btnTicketInfo"},
    {"history", kBills + "tick:0 busy m_btnECDSHistoryInfo"},
    {"registration", kBills + "tick:0 busy m_btnECDSSignInfo"},
    {"large_value", kBills + "tick:0 busy m_btnBigResult"},
    {"totals", kBills + "m_crbAllCheck m_spdSum tick:2 m_spdSum"},
    {"columns", kBills + "column:2 m_spdQuery release " + kBills + "release", true},
    {"export", kLoans +
                   "m_crbAllCheck file:/torture.xls m_tbExport file:/torture.txt m_tbExport file:/dev/null "
                   "m_tbExport file: m_tbExport"},
    {"shortcut", "start pick:7 m_tbSendToDesktop"},
    {"refused_and_empty", kBills + "tick:0 bank:r m_spdQuery bank:e m_spdQuery m_spdQuery tick:0 bank:r "
                                   "m_btnBigResult bank:e m_btnBigResult"},
    {"shown_again", kBills + "tick:0 close " + kBills + "close " + kLoans},
    {"institutions", "start pick:8 m_cbxAcc=1 bank:e m_cbxAcc=2 m_cbxAcc=0 " + kDetails},
    {"refused_conditions", "start pick:7 m_spdQuery m_dtStartDate=20260331 m_dtEndDate=2026033 m_spdQuery"},
    {"traditional_chinese", kBills + "tick:1 m_btnECDSSignInfo"},
};

struct Options {
  std::string scenario;
  std::size_t count = 4000;
  std::size_t workers = 2;
};

constexpr const char* kExtents[] = {"", " and all after it", " and all after it but reports"};

struct Injection {
  const Scenario* scenario;
  std::size_t call;
  const Fault* fault;
  Extent extent;
  bool newLife;  // the module is released before the host is well again

  std::string Text() const {
    return std::string(scenario->name) + ", call " + std::to_string(call) +
           kExtents[static_cast<int>(extent)] + ": " + fault->name +
           (newLife ? ", then a new life" : ", then the same life");
  }
};

struct Whole {
  std::string seen;
  std::map<std::string, std::string> layouts;
  std::vector<unsigned> failable;
};

struct Rig {
  ModuleLibrary module;
  FailingHost host;
  std::map<std::string, std::string> before;  // the layouts of an earlier session
  std::map<const Scenario*, Whole> whole;     // the plays in which nothing fails
};

void Prepare(Rig& rig, const Scenario& scenario) {
  rig.host.ResetLayouts();
  rig.before = rig.host.Layouts();
  rig.host.SpeakTraditionalChinese(scenario.name == std::string("traditional_chinese"));
}

std::string Difference(const std::string& expected, const std::string& actual) {
  const auto both = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  const auto at = static_cast<std::size_t>(both.first - expected.begin());
  const std::size_t from = at < 80 ? 0 : at - 80;
  return ":\n    expected ..." + expected.substr(from, 200) + "\n    but was  ..." + actual.substr(from, 200);
}

// What the module did wrong; empty: nothing.
std::set<std::string> Inject(Rig& rig, const Injection& injection) {
  const Whole& whole = rig.whole.at(injection.scenario);
  Prepare(rig, *injection.scenario);
  Stage stage(rig.module, rig.host);
  rig.host.Begin(injection.call, injection.extent, injection.fault);
  stage.Play(injection.scenario->moves);
  const std::string failed = rig.host.failed;
  if (injection.newLife) {
    stage.Play("release");
    for (const auto& [form, layout] : rig.host.Layouts()) {
      if (layout == rig.before.at(form) || layout == whole.layouts.at(form)) continue;
      stage.broken.insert("the layout of " + form + " is lost" + Difference(rig.before.at(form), layout));
    }
    rig.host.ResetLayouts();
  }
  rig.host.Begin();
  const std::string seen = stage.Play(injection.scenario->moves);
  if (seen != whole.seen) stage.broken.insert("the next play differs" + Difference(whole.seen, seen));
  stage.Play("release");
  if (rig.host.Layouts() != whole.layouts) stage.broken.insert("the next play stores other layouts");
  if (!stage.broken.empty()) stage.broken.insert("(failed at " + failed + ")");
  return stage.broken;
}

// All injections, the same ones in the same order at each run.
std::vector<Injection> Plan(Rig& rig, const Options& options) {
  std::vector<Injection> plan;
  for (const Scenario& scenario : kScenarios) {
    if (!options.scenario.empty() && options.scenario != scenario.name) continue;
    Prepare(rig, scenario);
    Stage stage(rig.module, rig.host);
    rig.host.Begin();
    Whole& whole = rig.whole[&scenario];
    whole.seen = stage.Play(scenario.moves);
    whole.failable = rig.host.failable;
    stage.Play("release");
    whole.layouts = rig.host.Layouts();
    for (std::size_t call = 0; call < whole.failable.size(); ++call) {
      for (const Fault& fault : kFaults) {
        if ((fault.functions & whole.failable[call]) == 0) continue;
        for (const Extent extent : {Extent::kOnce, Extent::kOnward, Extent::kReported}) {
          plan.push_back({&scenario, call, &fault, extent, true});
          if (!scenario.leavesTraces) plan.push_back({&scenario, call, &fault, extent, false});
        }
      }
    }
  }
  std::shuffle(plan.begin(), plan.end(), std::mt19937(1));
  return plan;
}

constexpr unsigned kPatience = 120;  // seconds for one injection
std::string g_what = "the plays without a fault\n";

void Say(int signal) {
  const char* end = signal == SIGALRM ? "  hangs\n" : "  crashes\n";
  if (write(STDERR_FILENO, g_what.data(), g_what.size()) < 0 || write(STDERR_FILENO, end, strlen(end)) < 0) {
    std::signal(signal, SIG_IGN);
  }
  std::signal(signal, SIG_DFL);
  raise(signal);
}

// One process of those that share the injections; the number that broke something, at most 200.
int Work(std::size_t number, const Options& options) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  for (const int signal : {SIGALRM, SIGSEGV, SIGABRT}) std::signal(signal, Say);
  int argc = 1;
  char name[] = "torture";
  char* argv[] = {name, nullptr};
  QApplication application(argc, argv);
  alarm(kPatience);
  Rig rig;
  const std::vector<Injection> plan = Plan(rig, options);
  const std::size_t count = std::min(plan.size(), options.count);
  if (number == 0) std::printf("%zu of %zu injections\n", count, plan.size());
  int broken = count == 0 ? 1 : 0;
  for (std::size_t i = number; i < count; i += options.workers) {
    g_what = plan[i].Text() + "\n";
    alarm(kPatience);
    std::string text;
    for (const std::string& fault : Inject(rig, plan[i])) text += "  " + fault + "\n";
    if (text.empty()) continue;
    std::fputs((g_what + text).c_str(), stderr);
    ++broken;
  }
  std::fflush(stdout);
  return std::min(broken, 200);
}

int Run(const Options& options) {
  for (std::size_t i = 0; i < options.workers; ++i) {
    if (fork() == 0) std::_Exit(Work(i, options));
  }
  int broken = 0;
  int status = 0;
  while (wait(&status) > 0) broken += WIFEXITED(status) ? WEXITSTATUS(status) : 1;
  std::printf("%d broke something\n", broken);
  return broken == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("QT_LOGGING_RULES", "*=false", 1);
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string option = argv[i];
    const char* value = i + 1 < argc ? argv[i + 1] : "";
    if (option == "--all") {
      options.count = SIZE_MAX;
      continue;
    }
    if (option == "--sample") options.count = std::strtoul(value, nullptr, 10);
    if (option == "--workers") options.workers = std::strtoul(value, nullptr, 10);
    if (option == "--scenario") options.scenario = value;
    if (option == "--help") std::puts("torture [--all | --sample COUNT] [--scenario NAME] [--workers COUNT]");
    if (option == "--help") return 0;
    ++i;
  }
  return Run(options);
}
