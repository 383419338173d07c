#pragma once

#include <set>
#include <string>

namespace demohost {

// What a demonstration makes go wrong in the host, so that the module's answer to it can be seen.
struct Faults {
  // The key of refusals.h that the bank refuses the next exchange with; empty: it answers.
  std::string exchange;
  // Keys that have no text in any language.
  std::set<std::string, std::less<>> texts;
  // Keys of the public information that reads are refused for.
  std::set<std::string, std::less<>> entries;
  // The first bill of the bank's next answer to a query is marked as refused.
  bool row = false;
  // The folder of the client's pictures can't be written to.
  bool images = false;
};

}  // namespace demohost
