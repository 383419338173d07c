// Six host libraries for tests, which answer every ordinal, write down what they were asked and misbehave on
// request.
//
// For the tests of the proxies and of all that stands above them. They hold no data: what a test wants
// answered it sets.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/host_api.h"

namespace fakehost {

/// The libraries of the host.
enum class Library { kPublicInformation, kTranslate, kError, kSafeCom, kExcel, kPrint };

/// All six.
inline constexpr Library kLibraries[] = {Library::kPublicInformation, Library::kTranslate, Library::kError,
                                         Library::kSafeCom,           Library::kExcel,     Library::kPrint};

/// The key under which the public information library keeps the handle of another library.
const char* HandleKey(Library library);

/// What a function answers. A well-behaved answer is Text("...") or Refusal("...").
struct Answer {
  /// The whole register, of which only the low 8 bits count.
  std::uint32_t result = 1;
  /// What the buffer holds.
  std::string text;
  /// The length that is given, if not the text's.
  std::optional<std::int32_t> length = {};
  /// Gives no buffer at all.
  bool noBuffer = false;
  /// Written without a terminator where it fills the buffer.
  std::string error = {};
  /// Throws std::runtime_error and does nothing else.
  bool throws = false;
};

/// Success with a text.
Answer Text(std::string text);
/// A refusal with its reason.
Answer Refusal(std::string error);

/// What a library was asked.
struct Call {
  /// The library that was called.
  Library library;
  /// The function in it.
  std::uint32_t ordinal;
  /// All in order but the result pair and the error text; numbers as decimal text.
  std::vector<std::string> arguments;

  bool operator==(const Call&) const = default;
};

/// One at a time; the libraries' functions answer from the one that lives.
class FakeHost {
 public:
  FakeHost();
  FakeHost(const FakeHost&) = delete;
  FakeHost& operator=(const FakeHost&) = delete;
  ~FakeHost();

  /// Registers a library without the ordinals in `missing`; the handle ends with the host.
  norvik_handle Register(Library library, const std::set<std::uint32_t>& missing = {});

  /// Registers all six, the five under their handle keys, and returns the public information library's
  /// handle.
  norvik_handle RegisterAll();

  /// The answer of one function from now on.
  void SetAnswer(Library library, std::uint32_t ordinal, Answer answer);
  /// The answer for these arguments alone.
  void SetAnswer(Library library, std::uint32_t ordinal, std::vector<std::string> arguments, Answer answer);

  /// The calls of one function.
  std::vector<Call> CallsOf(Library library, std::uint32_t ordinal) const;

  /// Runs on each answer, handles included, before it is given; may change it.
  std::function<void(const Call& call, Answer& answer)> onAnswer;

  /// The handles under their keys.
  std::map<std::string, std::uint32_t> handles;
  /// The bank's time in milliseconds.
  std::int64_t serverTime = 0;
  /// All calls so far.
  std::vector<Call> calls;
  /// Runs inside each call, once it is written down.
  std::function<void(const Call&)> during;

  /// Buffers given out, and what came back of them.
  int given = 0;
  int released = 0;
  int nullReleased = 0;
  int wronglyReleased = 0;

  /// For the libraries' functions.
  std::uint32_t HandleOf(const char* key);
  void Note(const Call& call);
  std::uint32_t Reply(const Call& call, char** buffer, std::int32_t* length, char* error);
  void Release(Library library, std::uint32_t ordinal, char* buffer);

 private:
  std::vector<norvik_handle> modules_;
  std::map<std::pair<Library, std::uint32_t>, Answer> answers_;
  std::map<std::tuple<Library, std::uint32_t, std::vector<std::string>>, Answer> answersByArguments_;
  std::set<char*> live_;
};

}  // namespace fakehost
