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
};

}  // namespace demohost
