#include <QWidget>

#include "demohost/check/cases.h"
#include "demohost/check/subject.h"

namespace demohost::check {
namespace {

void OpenAll(CaseRun& run, Subject& subject, const std::vector<std::string>& items) {
  for (const std::string& item : items) subject.Pick(item);
  run.Expect(run.Host().ShownWindows().size() == items.size(),
             std::to_string(run.Host().ShownWindows().size()) + " windows are open after picks of " +
                 std::to_string(items.size()) + " items");
}

void CloseAll(CaseRun& run) {
  run.Step("closing the windows");
  for (QWidget* window : run.Host().ShownWindows()) window->close();
  Settle();
  run.Expect(run.Host().ShownWindows().empty(), "a window can't be closed");
}

void ReleaseWithForms(CaseRun& run, bool closed) {
  run.Host();
  Subject subject(run);
  const std::vector<std::string> items = subject.Items();
  for (int round = 0; round < 2; ++round) {
    subject.Start();
    OpenAll(run, subject, items);
    if (closed) CloseAll(run);
    subject.End();
  }
}

}  // namespace

void ReleaseUnstarted(CaseRun& run) {
  run.Host();
  Subject subject(run);
  subject.End();
  subject.End();
}

void ReleaseFailedStart(CaseRun& run) {
  run.Host();
  Subject subject(run);
  const CallEnd end = subject.Init(0, " with no library");
  run.Expect(end.kind == CallEnd::kContract, "InitModule with no library: " + end.words);
  subject.End();
  subject.Start();
  subject.End();
}

void ReleaseOpen(CaseRun& run) {
  ReleaseWithForms(run, false);
}

void ReleaseClosed(CaseRun& run) {
  ReleaseWithForms(run, true);
}

void ReleaseTwice(CaseRun& run) {
  run.Host();
  Subject subject(run);
  subject.Start();
  subject.End();
  subject.End();
}

}  // namespace demohost::check
