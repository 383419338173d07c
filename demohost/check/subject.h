// The module under check: its five exports, called so that whatever they throw is seen, and the calls of a
// sound host made of them. Used by the cases; unlike demohost/module.h it fails the case instead of
// throwing.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "demohost/check/case_run.h"
#include "platform/host_api.h"

namespace demohost::check {

/// How a call into a module ended.
struct CallEnd {
  /// It returned, threw a corvane::TException, or threw anything else.
  enum Kind { kReturned, kContract, kForeign };
  Kind kind = kReturned;
  std::vector<std::string> keys;      ///< of kContract, narrow text
  std::string words = "it returned";  ///< what was seen, UTF-8

  /// True if it threw a corvane::TException with this one key.
  bool Threw(const char* key) const { return kind == kContract && keys == std::vector<std::string>{key}; }
};

/// Runs a call and returns how it ended.
CallEnd Caught(const std::function<void()>& call);

/// The module under check, loaded from construction to destruction.
class Subject {
 public:
  /// The case fails where the library can't be loaded or lacks an export.
  explicit Subject(CaseRun& run);
  ~Subject();
  Subject(const Subject&) = delete;
  Subject& operator=(const Subject&) = delete;

  /// Calls InitModule. Each call is noted as a step; `where` says under which circumstances.
  CallEnd Init(norvik_handle publicInformation, const std::string& where = {});
  /// Calls CallFunc with the text of a request.
  CallEnd Call(const std::string& request, const std::string& where = {});
  /// Calls Release.
  CallEnd Release(const std::string& where = {});
  /// Calls MenuConfig with a buffer of the host's, or with null in it.
  CallEnd Menu(char** buffer);
  /// Calls FreeBuff, null allowed.
  CallEnd Free(char* buffer);

  /// InitModule as a sound host calls it; the case fails unless it returns 0.
  void Start(const std::string& where = {});
  /// Picks an item and runs the event loop until its screen is open; the case fails if the pick throws.
  void Pick(const std::string& item);
  /// Release; the case fails if a window, or more than `buffers` buffers of the host, are left.
  void End(std::size_t buffers = 0);
  /// The menu text from MenuConfig, whose buffer is returned with FreeBuff.
  std::string MenuText();
  /// The items of the menu; the case fails where the menu text can't be read.
  std::vector<std::string> Items();

 private:
  template <class Function>
  Function Find(const char* name);

  CaseRun& run_;
  void* library_;
  norvik_init_module initModule_;
  norvik_menu_config menuConfig_;
  norvik_free_buff freeBuff_;
  norvik_call_func callFunc_;
  norvik_release release_;
  std::uint32_t initResult_ = 0;
};

/// The text of a menu request for an item.
std::string RequestFor(const std::string& item);

}  // namespace demohost::check
