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

/// Six host libraries for tests, which answer every ordinal, write down what they were asked and misbehave on
/// request.
namespace fakehost {

enum class Library { kPublicInformation, kTranslate, kError, kSafeCom, kExcel, kPrint };

inline constexpr Library kLibraries[] = {Library::kPublicInformation, Library::kTranslate, Library::kError,
                                         Library::kSafeCom,           Library::kExcel,     Library::kPrint};

/// The key under which the public information library keeps the handle of another library.
const char* HandleKey(Library library);

/// What a function answers. A well-behaved answer is Text("...") or Refusal("...").
struct Answer {
  std::uint32_t result = 1;  // the whole register, of which only the low 8 bits count
  std::string text;
  std::optional<std::int32_t> length = {};  // told in place of the text's
  bool noBuffer = false;
  std::string error = {};  // written without a terminator where it fills the buffer
  bool throws = false;     // std::runtime_error, in place of all of this
};

Answer Text(std::string text);
Answer Refusal(std::string error);

struct Call {
  Library library;
  std::uint32_t ordinal;
  std::vector<std::string>
      arguments;  // all in order but the result pair and the error text; numbers as decimal text

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

  void SetAnswer(Library library, std::uint32_t ordinal, Answer answer);
  /// The answer for these arguments alone.
  void SetAnswer(Library library, std::uint32_t ordinal, std::vector<std::string> arguments, Answer answer);

  /// The calls of one function.
  std::vector<Call> CallsOf(Library library, std::uint32_t ordinal) const;

  /// Runs on each answer, handles included, before it is given; may change it.
  std::function<void(const Call& call, Answer& answer)> onAnswer;

  std::map<std::string, std::uint32_t> handles;
  std::int64_t serverTime = 0;
  std::vector<Call> calls;
  std::function<void(const Call&)> during;  // runs inside each call, once it is written down

  // Buffers given out, and what came back of them.
  int given = 0;
  int released = 0;
  int nullReleased = 0;
  int wronglyReleased = 0;

  // For the libraries' functions.
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
