// The export CallFunc with any request, in a module that was not started: the text is parsed and its item
// looked up, but no screen opens.
#include <string>

#include "data/exception.h"
#include "fuzz/target.h"
#include "platform/host_api.h"

extern "C" void CallFunc(const char* request, uint32_t reserved);

FUZZ_TEXT(text) {
  try {
    CallFunc(std::string(text).c_str(), 0);
  } catch (const corvane::TException& failure) {
    const auto errors = failure.getErrors();
    Require(errors.size() == 1 && (errors[0] == "ET10057" || errors[0] == "CF30007"),
            "a request is no row, or its item meets a module that was not started");
  }
}
