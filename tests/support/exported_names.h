// What leaves a shared library, for the tests that compare it with the headers.
//
// It looks with the program nm, which comes with the compiler, at the file that the test itself has loaded.
#pragma once

#include <dlfcn.h>

#include <array>
#include <cstdio>
#include <set>
#include <string>

/// The names of what the library that holds `function` exports, each up to the end of its class or function:
/// "corvane::Row", "norvik_module_open". Empty where the library can't be looked into.
template <class Function>
std::set<std::string> ExportedNames(Function* function) {
  std::set<std::string> names;
  Dl_info library{};
  if (dladdr(reinterpret_cast<void*>(function), &library) == 0) return names;
  FILE* lines = popen(("nm -DC --defined-only '" + std::string(library.dli_fname) + "'").c_str(), "r");
  if (lines == nullptr) return names;
  std::array<char, 4096> line;
  while (std::fgets(line.data(), line.size(), lines) != nullptr) {
    std::string name(line.data());
    name.erase(0, name.find_first_of(' ') + 3);  // address and kind
    for (const char* about : {"typeinfo for ", "typeinfo name for ", "vtable for "})
      if (name.starts_with(about)) name.erase(0, std::string(about).size());
    const std::size_t space = name.find("::");
    const std::size_t from = space == std::string::npos ? 0 : space + 2;
    names.insert(name.substr(0, name.find_first_of(":([<\n", from)));
  }
  pclose(lines);
  return names;
}
