#include <QPointer>
#include <QWidget>
#include <algorithm>

#include "demohost/check/cases.h"
#include "demohost/check/subject.h"
#include "demohost/window/open_forms.h"

namespace demohost::check {
namespace {

void ExpectNoWindow(CaseRun& run, const std::string& when) {
  for (const QWidget* window : run.Host().ShownWindows()) {
    run.Fail(when + " a window \"" + window->objectName().toStdString() + "\" is open");
  }
}

// The module's only visible window, which the host knows of.
QWidget* OnlyWindow(CaseRun& run, const std::string& when) {
  const std::vector<QWidget*> windows = run.Host().ShownWindows();
  run.Expect(windows.size() == 1, when + " " + std::to_string(windows.size()) + " windows are open");
  run.Expect(run.Host().FormHandles().size() == 1, when + " " +
                                                       std::to_string(run.Host().FormHandles().size()) +
                                                       " forms have a handle in the public information");
  return windows.front();
}

void ExpectTold(CaseRun& run, std::uint32_t message, int minTimes, const char* what) {
  run.Expect(run.Host().Told(message) >= minTimes,
             std::string("the host wasn't told that the form was ") + what);
}

}  // namespace

void CallUnstarted(CaseRun& run) {
  run.Host();
  Subject subject(run);
  for (const std::string& item : subject.Items()) {
    const CallEnd end = subject.Call(RequestFor(item));
    run.Expect(end.Threw("CF30007"), "CallFunc of " + Quoted(item) + ": " + end.words);
    ExpectNoWindow(run, "after it");
  }
}

void CallBadRequest(CaseRun& run) {
  run.Host();
  Subject subject(run);
  subject.Start();
  for (const char* request : {"", "ITEM", "<row", "<row><ItemName>ITEM</row>", "<row/><row/>"}) {
    const CallEnd end = subject.Call(request);
    run.Expect(end.Threw("ET10057"), "CallFunc of " + Quoted(request) + ": " + end.words);
    ExpectNoWindow(run, "after a bad request");
  }
  subject.End();
}

void CallUnknown(CaseRun& run) {
  run.Host();
  Subject subject(run);
  subject.Start();
  const std::vector<std::string> items = subject.Items();
  std::vector<std::string> others = {"", "no such item"};
  for (const std::string& item : items) others.insert(others.end(), {item + "0", " " + item});
  for (const std::string& item : others) {
    if (std::find(items.begin(), items.end(), item) != items.end()) continue;
    subject.Pick(item);
    ExpectNoWindow(run, "after a pick of " + Quoted(item));
  }
  const CallEnd end = subject.Call("<row><Other/></row>");
  run.Expect(end.kind == CallEnd::kReturned, "CallFunc without an ItemName: " + end.words);
  subject.End();
}

void OpenItem(CaseRun& run) {
  CheckHost& host = run.Host();
  Subject subject(run);
  subject.Start();
  subject.Pick(run.Item());
  const QPointer<QWidget> window = OnlyWindow(run, "after the first pick");
  ExpectTold(run, form_message::kShown, 1, "shown");
  subject.Pick(run.Item());
  run.Expect(OnlyWindow(run, "after a pick of the open item") == window,
             "a pick of the open item brought another window");

  run.Step("closing the window");
  window->close();
  Settle();
  ExpectNoWindow(run, "after its closing");
  ExpectTold(run, form_message::kClosed, 1, "closed");
  run.Expect(host.FormHandles().empty(), "the closed form still has a handle in the public information");

  subject.Pick(run.Item());
  OnlyWindow(run, "after a pick of the closed item");
  ExpectTold(run, form_message::kShown, 2, "shown again");
  subject.End();
}

}  // namespace demohost::check
