#include "demohost/check/check.h"

#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <map>

#include "demohost/check/cases.h"
#include "demohost/check/child.h"
#include "demohost/script/aligned_table.h"
#include "platform/code_page.h"

namespace demohost::check {
namespace {

constexpr const char* kReportFile = "report";
constexpr int kMessageMilliseconds = 50;

// The folder of one check, gone with the object.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "demohost-check-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
      throw std::filesystem::filesystem_error("can't make a folder", pattern,
                                              std::error_code(errno, std::generic_category()));
    }
    path_ = pattern;
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// Pads to a width of columns on the screen.
std::string Padded(const std::string& text, int width) {
  return text +
         std::string(
             static_cast<std::size_t>(std::max(0, width - DisplayWidth(QString::fromStdString(text)))), ' ');
}

// One check: plays cases and writes their lines.
class Check {
 public:
  explicit Check(const Options& options) : options_(options) { PrepareFolder(options, folder_.Path()); }

  void PlayAll() {
    for (const Case& one : Cases()) {
      if (!one.forEachItem) {
        Play(one, {});
      } else if (items_.empty()) {
        Tell(std::string(one.name) + "items", one.sentence, {Outcome::kSkipped, "the menu has no item", {}});
      } else {
        for (const std::string& item : std::vector<std::string>(items_)) Play(one, item);
      }
    }
  }

  // Plays one case and asks for nothing before it.
  void PlayOnly(const std::string& name, const NamedCase& one) {
    Tell(name, one.found->sentence, InChild(name, *one.found, false));
  }

  // The line of counts. The exit status.
  int Finish() const {
    int all = 0;
    std::string counts;
    for (std::size_t at = 0; at < kOutcomeNames.size(); ++at) {
      all += counts_[at];
      counts += (at == 0 ? " " : ", ") + std::to_string(counts_[at]) + " " + kOutcomeNames[at];
    }
    std::cout << all << " cases:" << counts << std::endl;
    const int good = Count(Outcome::kPassed) + Count(Outcome::kSkipped);
    return good == all ? EXIT_SUCCESS : EXIT_FAILURE;
  }

 private:
  int Count(Outcome outcome) const { return counts_[static_cast<std::size_t>(outcome)]; }

  void Play(const Case& one, const std::string& item) {
    const std::string name = one.name + item;
    if (*one.needs != '\0' && !passed_[one.needs]) {
      Tell(name, one.sentence, {Outcome::kSkipped, std::string("it needs ") + one.needs, {}});
      return;
    }
    Judged judged = InChild(name, one, true);
    passed_[name] = judged.outcome == Outcome::kPassed;
    if (!judged.items.empty()) items_ = judged.items;
    Tell(name, one.sentence, judged);
  }

  Judged InChild(const std::string& name, const Case& one, bool quietly) {
    std::error_code ignored;
    std::filesystem::remove_all(folder_.Path() / "config", ignored);
    const std::filesystem::path report = folder_.Path() / kReportFile;
    std::filesystem::remove(report);
    std::vector<std::string> arguments = {"--check", options_.check.string(), "--case",
                                          name,      "--check-folder",        folder_.Path().string(),
                                          "--share", options_.share.string()};
    if (!options_.language.empty()) arguments.insert(arguments.end(), {"--language", options_.language});
    return RunInChild(arguments, report, std::max(1, options_.checkLimit) * one.time, quietly);
  }

  void Tell(const std::string& name, const char* sentence, const Judged& judged) {
    constexpr int kNameWidth = 29;
    const char* outcome = kOutcomeNames[static_cast<std::size_t>(judged.outcome)];
    std::cout << Padded(name, kNameWidth) << ' ' << Padded(outcome, 8) << sentence << '\n';
    if (judged.outcome != Outcome::kPassed) std::cout << std::string(10, ' ') << judged.seen << '\n';
    std::cout << std::flush;
    ++counts_[static_cast<std::size_t>(judged.outcome)];
  }

  const Options& options_;
  ScratchFolder folder_;
  std::map<std::string, bool> passed_;
  std::vector<std::string> items_;
  std::array<int, kOutcomeNames.size()> counts_{};
};

// What a window says that is in the way.
std::string WordsOf(const QWidget& window) {
  QString words = window.windowTitle();
  for (const QLabel* label : window.findChildren<QLabel*>()) words += QLatin1Char(' ') + label->text();
  return words.simplified().toStdString();
}

// Plays a case in the process made for it.
int PlayHere(const Options& options) {
  // It ends with the process that judges it, and leaves no core file.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const rlimit none = {0, 0};
  setrlimit(RLIMIT_CORE, &none);
  const NamedCase one = FindCase(options.checkCase);
  if (one.found == nullptr) return EXIT_FAILURE;

  Report report(options.checkFolder / kReportFile);
  // No window comes up on the user's screen.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  std::string name = "demohost";
  char* argv[] = {name.data(), nullptr};
  int argc = 1;
  {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    CaseRun run(options, norvik::AnsiFromUtf8(one.item), report);
    QTimer messages;
    messages.callOnTimeout([&run] {
      const QWidget* window = QApplication::activeModalWidget();
      if (window != nullptr && !run.ExpectsDialogs())
        run.Fail("a modal window is in the way: " + WordsOf(*window));
    });
    messages.start(kMessageMilliseconds);
    one.found->play(run);
  }
  report.Passed();
  return EXIT_SUCCESS;
}

}  // namespace

int Run(const Options& options) {
  if (!options.checkFolder.empty()) return PlayHere(options);
  const NamedCase only = FindCase(options.checkCase);
  if (!options.checkCase.empty() && only.found == nullptr) {
    throw OptionError("the check has no case \"" + options.checkCase + "\"");
  }
  Check check(options);
  if (only.found != nullptr) {
    check.PlayOnly(options.checkCase, only);
  } else {
    check.PlayAll();
  }
  return check.Finish();
}

}  // namespace demohost::check
