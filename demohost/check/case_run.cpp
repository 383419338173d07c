#include "demohost/check/case_run.h"

#include <QApplication>
#include <QEvent>
#include <cstdlib>

#include "platform/code_page.h"

namespace demohost::check {

CheckHost& CaseRun::Host() {
  if (!host_) host_.emplace(options_, options_.checkFolder);
  return *host_;
}

void CaseRun::FoundItem(const std::string& item) {
  report_.Item(norvik::Utf8FromAnsi(item));
}

void CaseRun::Fail(const std::string& seen) {
  report_.Failed(seen);
  std::_Exit(EXIT_FAILURE);
}

std::string Quoted(const std::string& narrow) {
  return '"' + norvik::Utf8FromAnsi(narrow) + '"';
}

void Settle() {
  // What the events delete or do may bring new ones.
  for (int round = 0; round < 3; ++round) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
}

}  // namespace demohost::check
