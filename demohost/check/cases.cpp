#include "demohost/check/cases.h"

namespace demohost::check {
namespace {

template <std::size_t library>
void Without(CaseRun& run) {
  StartWithout(run, library);
}

constexpr Case kCases[] = {
    {"load", "The library can be loaded and unloaded, again and again.", "", Load},
    {"exports", "It exports InitModule, MenuConfig, FreeBuff, CallFunc and Release, and nothing else.",
     "load", Exports},
    {"start", "InitModule returns 0 with six whole libraries, and Release leaves nothing.", "exports", Start},
    {"missing-public-information",
     "Without any one function of public information InitModule throws CF15001.", "start", Without<0>},
    {"missing-translation", "Without any one function of translation InitModule throws CF19002.", "start",
     Without<1>},
    {"missing-errors", "Without any one function of errors InitModule throws CF23002.", "start", Without<2>},
    {"missing-print", "Without any one function of print InitModule throws CF14010.", "start", Without<3>},
    {"missing-secure-communication",
     "Without any one function of secure communication InitModule throws ET16024.", "start", Without<4>},
    {"missing-spreadsheet", "Without any one function of spreadsheet InitModule throws CF20023.", "start",
     Without<5>},
    {"menu-text", "The menu text is an iniplus whose section MENU names items.", "exports", MenuText},
    {"menu-own-buffers", "Two menu texts are equal, in two buffers, which FreeBuff takes back.", "menu-text",
     MenuOwnBuffers},
    {"menu-host-buffer",
     "The menu text goes into a buffer of the host's, and no further than its terminator.", "menu-text",
     MenuHostBuffer},
    {"free-null", "FreeBuff of null does nothing.", "exports", FreeNull},
    {"pick-unstarted", "A pick before InitModule throws CF30007.", "menu-text", CallUnstarted},
    {"bad-request", "A menu request that isn't a row throws ET10057 and opens nothing.", "start",
     CallBadRequest},
    {"unknown-item", "An item that isn't in the menu does nothing.", "start", CallUnknown},
    {"open-", "The item opens one window, which can be closed and opened again.", "start", OpenItem, 1, true},
    {"release-unstarted", "Release before any InitModule does nothing.", "exports", ReleaseUnstarted},
    {"release-failed-start",
     "Release after an InitModule that failed leaves nothing, and a new start succeeds.", "start",
     ReleaseFailedStart},
    {"release-open", "Release ends every open window, and a new start opens them again.", "menu-text",
     ReleaseOpen},
    {"release-closed", "Release ends every closed window, and a new start opens them again.", "menu-text",
     ReleaseClosed},
    {"release-twice", "A second Release does nothing.", "start", ReleaseTwice},
    {"call-in-start",
     "Any call from inside a function of the host that InitModule calls leaves a sound module.", "start",
     CallInStart, 2},
    {"call-in-release",
     "Any call from inside a function of the host that Release calls leaves a sound module.", "release-open",
     CallInRelease, 2},
    {"call-in-pick-",
     "Any call from inside the host while it opens the item finds its screens gone or shown.", "release-open",
     CallInPick, 3, true},
    {"call-in-function-",
     "Any call from inside the host while a button works ends the module, or waits for the exchange.",
     "release-open", CallInFunction, 6, true},
    {"call-in-dialog-",
     "Any call beside an open dialog or menu closes it and ends the module, or shows an item.",
     "release-open", CallInDialog, 6, true},
    {"call-in-timer-", "Any call from the event loop while a button works ends the module or shows an item.",
     "release-open", CallInTimer, 6, true},
    {"cycles", "A thousand times from loading to unloading leave memory, threads and files as they were.",
     "start", Cycles, 6},
};

}  // namespace

std::span<const Case> Cases() {
  return kCases;
}

NamedCase FindCase(std::string_view name) {
  for (const Case& one : kCases) {
    if (!one.forEachItem && name == one.name) return {&one, {}};
    const std::string_view prefix = one.name;
    if (one.forEachItem && name.size() > prefix.size() && name.substr(0, prefix.size()) == prefix) {
      return {&one, std::string(name.substr(prefix.size()))};
    }
  }
  return {nullptr, {}};
}

}  // namespace demohost::check
