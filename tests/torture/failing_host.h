// A host for the torture test: it answers all that the screens request until the call that is to fail. The
// stage plays scenarios against it.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/support/module_library.h"

/// A way in which a call fails.
struct Fault {
  const char* name;
  unsigned functions;  // that can fail this way
  void (*apply)(fakehost::Answer& answer);
};
extern const std::vector<Fault> kFaults;

/// Which calls fail: one, it and all after it, or of these all but the error library's, so that the failure
/// can be reported.
enum class Extent { kOnce, kOnward, kReported };

/// A host with all that the screens request, one of whose calls fails, once or from there on. It stores the
/// column layouts of the module.
class FailingHost : public WindowedHost {
 public:
  FailingHost();

  /// Begins a play; without a fault nothing fails.
  void Begin(std::size_t failingCall = 0, Extent extent = Extent::kOnce, const Fault* fault = nullptr);
  /// Restores the layouts of an earlier session.
  void ResetLayouts();
  void SpeakTraditionalChinese(bool on);
  /// The stored layout of each form.
  std::map<std::string, std::string> Layouts();

  std::vector<unsigned> failable;  // the calls of this play that can fail, each by its kind of function
  std::string failed;              // the first that did
  std::string sent;                // to the bank, into files and to the desktop
  std::set<int> whole;  // exchanges whose answers came whole; that of exchange k has three bills Bk
  char bank = 'a';      // the next answer: 'r' refused, 'e' empty, else bills

 private:
  void Serve(const fakehost::Call& call, fakehost::Answer& answer);
  void Change(const fakehost::Call& call, fakehost::Answer& answer);

  corvane::Iniplus layouts_;
  std::size_t failingCall_ = 0;
  Extent extent_ = Extent::kOnce;
  const Fault* fault_ = nullptr;
  int exchanges_ = 0;
};
