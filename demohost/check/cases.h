// The table of the contract check's cases, and the functions that play them. Each file cases_*.cpp has
// those of one subject: start, menu, items, release, moments, cycles; cases.cpp has the table. Used by
// check.cpp alone.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "demohost/check/case_run.h"

namespace demohost::check {

/// A named case of the check.
struct Case {
  const char* name;            ///< as the command line takes it
  const char* sentence;        ///< what holds for a module that passes
  const char* needs;           ///< the earlier case without which it is skipped; "" for none
  void (*play)(CaseRun& run);  ///< fails through `run`, or returns
  int time = 1;                ///< how many times the limit it may take
  bool forEachItem = false;    ///< one for each item of the menu, whose name follows `name`
};

/// All cases, in the order in which they are played.
std::span<const Case> Cases();

/// The case of a name and the item in that name; null if there is none.
struct NamedCase {
  const Case* found;
  std::string item;
};
NamedCase FindCase(std::string_view name);

/// What the cases do; the sentence of each is in Cases().
void Load(CaseRun& run);
void Exports(CaseRun& run);
void Start(CaseRun& run);
/// Without any one function of the library, which is named by its place in kHostLibraries.
void StartWithout(CaseRun& run, std::size_t library);
void MenuText(CaseRun& run);
void MenuOwnBuffers(CaseRun& run);
void MenuHostBuffer(CaseRun& run);
void FreeNull(CaseRun& run);
void CallUnstarted(CaseRun& run);
void CallBadRequest(CaseRun& run);
void CallUnknown(CaseRun& run);
void OpenItem(CaseRun& run);
void ReleaseUnstarted(CaseRun& run);
void ReleaseFailedStart(CaseRun& run);
void ReleaseOpen(CaseRun& run);
void ReleaseClosed(CaseRun& run);
void ReleaseTwice(CaseRun& run);
void CallInStart(CaseRun& run);
void CallInRelease(CaseRun& run);
void CallInPick(CaseRun& run);
void CallInFunction(CaseRun& run);
void CallInDialog(CaseRun& run);
void CallInTimer(CaseRun& run);
void Cycles(CaseRun& run);

}  // namespace demohost::check
