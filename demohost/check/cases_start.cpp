#include <dlfcn.h>

#include <set>

#include "demohost/check/cases.h"
#include "demohost/check/exports.h"
#include "demohost/check/subject.h"

namespace demohost::check {
namespace {

// The key that InitModule throws for a function missing in a library, in the order of kHostLibraries.
constexpr const char* kMissingKeys[] = {"CF15001", "CF19002", "CF23002", "CF14010", "ET16024", "CF20023"};
static_assert(std::size(kMissingKeys) == std::tuple_size_v<decltype(kHostLibraries)>);

constexpr const char* kExports[] = {"CallFunc", "FreeBuff", "InitModule", "MenuConfig", "Release"};

}  // namespace

void Load(CaseRun& run) {
  for (int round = 0; round < 3; ++round) {
    run.Step("loading");
    void* library = dlopen(run.Module().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) run.Fail(dlerror());
    run.Step("unloading");
    dlclose(library);
    Settle();
  }
}

void Exports(CaseRun& run) {
  const auto found = ExportsOf(run.Module());
  if (!found) run.Fail("its table of symbols can't be read");
  std::string differences;
  for (const char* name : kExports) {
    if (found->count(name) == 0) differences += std::string(" no ") + name;
  }
  std::set<std::string> others = *found;
  for (const char* name : kExports) others.erase(name);
  for (const std::string& name : others) differences += " also " + name;
  run.Expect(differences.empty(), "it has" + differences);
}

void Start(CaseRun& run) {
  run.Host();
  Subject subject(run);
  subject.Start();
  subject.End();
}

void StartWithout(CaseRun& run, std::size_t library) {
  CheckHost& host = run.Host();
  const HostLibrary& plan = kHostLibraries[library];
  for (const norvik_ordinal& function : plan.table()) {
    Subject subject(run);
    const std::string where =
        std::string(" without function ") + std::to_string(function.ordinal) + " of " + plan.name;
    host.RegisterLibraries(MissingFunction{library, function.ordinal});
    const CallEnd end = subject.Init(host.PublicInformation(), where);
    run.Expect(end.Threw(kMissingKeys[library]), "InitModule" + where + ": " + end.words);
    subject.End();
    host.RegisterLibraries();
    subject.Start(" after one" + where);
    subject.End();
  }
}

}  // namespace demohost::check
