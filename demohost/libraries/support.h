// How a function of a library takes texts, gives results and reports failures by the contract, so that the
// functions themselves say only what they do. Used by the files of libraries.h; the check counts its
// buffers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "demohost/libraries/services.h"
#include "platform/host_api.h"

namespace demohost {

/// Memory for a result pair, with a terminator that the length doesn't count. The caller returns it with
/// ReleaseBuffer.
char* NewBuffer(const std::string& text);

/// Takes such a buffer back; null does nothing.
void ReleaseBuffer(char* buffer);
/// The number of buffers that were handed out and not returned yet.
std::size_t OutstandingBuffers();

/// Sizes of a caller's error text, its terminator included.
inline constexpr std::size_t kShortError = 255;
inline constexpr std::size_t kLongError = 256;

/// Writes narrow text and a terminator into the caller's buffer of `size` bytes, cut between two characters
/// where it is too long. A null buffer stays untouched.
void WriteError(char* error, std::size_t size, std::string_view text);

/// The lines that report the exception being handled to a caller: those of a refusal, the keys of an
/// exception of the record library, or kHostFailure with its text. Called from a catch clause.
std::string ErrorLines();

/// Runs the body of a library function. Returns 1, or 0 with the error text written where the body threw.
template <class Body>
std::uint8_t Guarded(char* error, std::size_t size, Body&& body) noexcept {
  try {
    body();
    return 1;
  } catch (...) {
    WriteError(error, size, ErrorLines());
    return 0;
  }
}

/// The same for a function that fills a result pair: the body returns the text.
template <class Body>
std::uint8_t Answered(char** buffer, std::int32_t* length, char* error, std::size_t size,
                      Body&& body) noexcept {
  return Guarded(error, size, [&] {
    const std::string text = body();
    *buffer = NewBuffer(text);
    *length = static_cast<std::int32_t>(text.size());
  });
}

/// The caller's text; null reads as empty.
inline std::string Text(const char* text) {
  return text == nullptr ? std::string() : std::string(text);
}

/// Reports a call to Services::called.
void NoteCall(void* function);

/// A function of a library's table that notes its call and runs `function`.
template <auto function>
struct Noted;

/// The same, taken apart into result and arguments.
template <class Result, class... Arguments, Result (*function)(Arguments...)>
struct Noted<function> {
  /// What the table has in the place of the function.
  static Result Call(Arguments... arguments) {
    NoteCall(reinterpret_cast<void*>(&Call));
    return function(arguments...);
  }
};

/// The entry of a function in a library's table, with each call noted before it runs.
template <auto function>
norvik_ordinal Entry(std::uint32_t ordinal) {
  return {ordinal, reinterpret_cast<void*>(&Noted<function>::Call)};
}

/// Adds an entry for each ordinal from `first` to `last`, both included, that the table doesn't have: a
/// function that does nothing and returns 0. Modules bind these and don't call them.
void AddIdle(std::vector<norvik_ordinal>& table, std::uint32_t first, std::uint32_t last);

}  // namespace demohost
