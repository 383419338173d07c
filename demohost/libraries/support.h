#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "demohost/bank/bank.h"
#include "demohost/bank_clock.h"
#include "demohost/faults.h"
#include "demohost/info_store.h"
#include "demohost/output/output.h"
#include "demohost/texts.h"
#include "platform/host_api.h"

namespace demohost {

// What the libraries' functions work on. The parts live longer than the libraries.
struct Services {
  InfoStore* store = nullptr;
  const Texts* texts = nullptr;
  Bank* bank = nullptr;
  const BankClock* clock = nullptr;
  Output* output = nullptr;
  // The bank takes at least this long for an exchange.
  int delayMilliseconds = 0;
  // A failure that the caller isn't told about, in UTF-8.
  std::function<void(const std::string& text)> report = {};
  // Runs at the beginning of each call of a function, which is told as its library's table has it.
  std::function<void(void* function)> called = {};
  Faults faults = {};
};

// The services of the libraries that are registered now. The functions of a host's library get no context, so
// there is one set in the process.
Services& CurrentServices();

// The language that the store holds now.
std::string CurrentLanguage();

// The text of a key in that language, UTF-8; empty where there is none.
std::string CurrentText(std::string_view key);

// Memory for a result pair, with a terminator that the length doesn't count; given back with ReleaseBuffer.
// Null does nothing.
char* NewBuffer(const std::string& text);
void ReleaseBuffer(char* buffer);
// Result buffers that were handed out and not given back yet.
std::size_t OutstandingBuffers();

// Sizes of a caller's error text, its terminator included.
inline constexpr std::size_t kShortError = 255;
inline constexpr std::size_t kLongError = 256;

// Writes narrow text into the caller's buffer, cut between two characters where it is too long; null is no
// buffer.
void WriteError(char* error, std::size_t size, std::string_view text);

// The lines that tell a caller of an exception: the keys of a refusal, of an exception of the module's data
// library, or kHostFailure with its text. Called from a catch clause.
std::string ErrorLines();

// Runs the body of a library function: 1, or 0 with the error text written where it threw.
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

// The same for a function that hands out a result pair: the body gives the text.
template <class Body>
std::uint8_t Answered(char** buffer, std::int32_t* length, char* error, std::size_t size,
                      Body&& body) noexcept {
  return Guarded(error, size, [&] {
    const std::string text = body();
    *buffer = NewBuffer(text);
    *length = static_cast<std::int32_t>(text.size());
  });
}

// Text of a caller; null reads as empty.
inline std::string Text(const char* text) {
  return text == nullptr ? std::string() : std::string(text);
}

// Reports a call to Services::called.
void NoteCall(void* function);

template <auto function>
struct Noted;

template <class Result, class... Arguments, Result (*function)(Arguments...)>
struct Noted<function> {
  static Result Call(Arguments... arguments) {
    NoteCall(reinterpret_cast<void*>(&Call));
    return function(arguments...);
  }
};

// Entry of a function in a library's table, which notes each call before it runs.
template <auto function>
norvik_ordinal Entry(std::uint32_t ordinal) {
  return {ordinal, reinterpret_cast<void*>(&Noted<function>::Call)};
}

// Adds an entry for each ordinal from first to last that the table doesn't have: a function that does nothing
// and gives 0. Callers bind these and don't call them.
void AddIdle(std::vector<norvik_ordinal>& table, std::uint32_t first, std::uint32_t last);

}  // namespace demohost
