// What every fuzz target needs: its entry and a check that ends the run.
//
// A target is a file of its own, FUZZ_TEXT with a body, which a fuzzer or fuzz/replay.cpp calls with one text
// after the other.
#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// Ends the run with `what` as the finding unless it holds.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

/// The entry of a fuzz target whose input is the text `text`.
#define FUZZ_TEXT(text)                                                                                     \
  static void FuzzText(std::string_view text);                                                              \
  extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {                      \
    FuzzText(size == 0 ? std::string_view() : std::string_view(reinterpret_cast<const char*>(data), size)); \
    return 0;                                                                                               \
  }                                                                                                         \
  static void FuzzText(std::string_view text)
