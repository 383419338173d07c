#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "demohost/check/case_run.h"
#include "platform/host_api.h"

namespace demohost::check {

// How a call into a module ended.
struct CallEnd {
  enum Kind { kReturned, kContract, kForeign };  // an exception of corvane::TException, or another one
  Kind kind = kReturned;
  std::vector<std::string> keys;      // of kContract, narrow text
  std::string words = "it returned";  // what was seen, UTF-8

  bool Threw(const char* key) const { return kind == kContract && keys == std::vector<std::string>{key}; }
};

// Runs a call and tells how it ended.
CallEnd Caught(const std::function<void()>& call);

// The module under check, loaded from construction to destruction.
class Subject {
 public:
  // The case fails where the library can't be loaded or lacks an export.
  explicit Subject(CaseRun& run);
  ~Subject();
  Subject(const Subject&) = delete;
  Subject& operator=(const Subject&) = delete;

  // The calls as they are. Each is noted as a step; `where` says under which circumstances.
  CallEnd Init(norvik_handle public_information, const std::string& where = {});
  CallEnd Call(const std::string& request, const std::string& where = {});
  CallEnd Release(const std::string& where = {});
  CallEnd Menu(char** buffer);
  CallEnd Free(char* buffer);

  // The calls as they go with a sound host; the case fails where they don't.
  void Start(const std::string& where = {});
  // Picks an item, and lets its screen come up.
  void Pick(const std::string& item);
  // Release; no window and no more buffers of the host than those may be left.
  void End(std::size_t buffers = 0);
  // The menu text by MenuConfig, given back with FreeBuff.
  std::string MenuText();
  // The items of the menu; the case fails where the menu text can't be read.
  std::vector<std::string> Items();

  // The result of the last Init that returned.
  std::uint32_t InitResult() const { return init_result_; }

 private:
  template <class Function>
  Function Find(const char* name);

  CaseRun& run_;
  void* library_;
  norvik_init_module init_module_;
  norvik_menu_config menu_config_;
  norvik_free_buff free_buff_;
  norvik_call_func call_func_;
  norvik_release release_;
  std::uint32_t init_result_ = 0;
};

// The text of a menu request for an item.
std::string RequestFor(const std::string& item);

}  // namespace demohost::check
