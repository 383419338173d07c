// What the proxies share: the function table of a library, the texts that go out to it and the buffers that
// come back.
//
// For the proxies of this folder. The rules of the boundary are kept here once: no call after the end of the
// life, no text with a NUL, every buffer given back, no answer read out of its bounds.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "data/corvane.h"
#include "platform/host_api.h"
#include "platform/life_ended.h"

namespace norvik {

/// The maximum length of an answer of the host: 256 MiB.
inline constexpr std::int32_t kMaxAnswerBytes = 256 * 1024 * 1024;

/// The room for a host's reason in a read, as the host is told.
inline constexpr std::size_t kReadErrorBytes = 255;
/// The same in an exchange, an export or a print.
inline constexpr std::size_t kOrderErrorBytes = 256;

template <class Signature>
class HostFunction;

/// The functions of one library, in the order of its ordinals. A host may end the life of the module from
/// inside any of them; the owner then closes the table, and no function is called any more.
class FunctionTable {
 public:
  /// Looks all of `ordinals` up, the list living as long as the table; false if any is missing, and the table
  /// then holds none of them.
  bool Resolve(norvik_handle module, std::span<const std::uint32_t> ordinals);

  /// The function with that ordinal, valid as long as the table lives. TException kNotInitialised if the
  /// table doesn't hold it, LifeEnded if it is closed.
  template <class Signature>
  HostFunction<Signature> Function(std::uint32_t ordinal) const {
    return {*this, reinterpret_cast<Signature*>(Find(ordinal))};
  }

  /// Calls no function from now on.
  void Close() { closed_ = true; }
  /// True once Close was called.
  bool Closed() const { return closed_; }
  /// Throws LifeEnded if the table is closed.
  void Check() const {
    if (closed_) throw LifeEnded();
  }

 private:
  void* Find(std::uint32_t ordinal) const;

  std::span<const std::uint32_t> ordinals_;
  std::vector<void*> functions_;
  bool closed_ = false;
};

/// One function of a table.
template <class Result, class... Arguments>
class HostFunction<Result(Arguments...)> {
 public:
  /// `function` has the ordinal's shape; `table` outlives the function.
  HostFunction(const FunctionTable& table, Result (*function)(Arguments...))
      : table_(&table), function_(function) {}

  /// Calls the host. LifeEnded, and no call, if the table is closed; LifeEnded after the call if the host has
  /// ended the life in it: what it has given is the host's then.
  Result operator()(Arguments... arguments) const {
    table_->Check();
    if constexpr (std::is_void_v<Result>) {
      function_(arguments...);
      table_->Check();
    } else {
      const Result result = function_(arguments...);
      table_->Check();
      return result;
    }
  }

  /// Calls the host if the table is open, and throws nothing.
  void CallIfOpen(Arguments... arguments) const noexcept {
    if (!table_->Closed()) function_(arguments...);
  }

  /// Throws LifeEnded if the table is closed.
  void Check() const { table_->Check(); }

 private:
  const FunctionTable* table_;
  Result (*function_)(Arguments...);
};

/// The text as the host takes it. TException kNulInText if it holds a NUL: the host would read only what
/// stands before it.
const char* Outgoing(const std::string& text);

/// The zeroed buffer into which the host writes why it refuses.
class ErrorText {
 public:
  /// `size` is the room that the host is told of, at most kOrderErrorBytes.
  explicit ErrorText(std::size_t size) : size_(size) {}

  /// The buffer, valid as long as this object.
  char* Buffer() { return buffer_.data(); }

  /// Throws TIOException with the host's text as its key and an empty detail.
  [[noreturn]] void ThrowWhole() const;

  /// Throws TException with one key for each line of the host's text.
  [[noreturn]] void ThrowLines() const;

 private:
  /// Up to the terminator, or `size` bytes where the host forgot it; kNoReason if there is nothing.
  std::string Text() const;

  std::size_t size_;
  std::array<char, 512> buffer_ = {};
};

/// The host's function that takes a buffer back.
using ReleaseFunction = HostFunction<void(char* buffer)>;

/// The buffer and length that the host fills, given back to it once on each path, but where the host has
/// ended the life meanwhile.
class ResultPair {
 public:
  /// What is done with a null buffer.
  enum class OnNull { kRelease, kSkip };

  /// `onNull` says whether a null buffer is given back as well.
  ResultPair(ReleaseFunction release, OnNull onNull) : release_(release), onNull_(onNull) {}
  /// A buffer is given back once.
  ResultPair(const ResultPair&) = delete;
  /// A buffer is given back once.
  ResultPair& operator=(const ResultPair&) = delete;
  ~ResultPair() {
    if (buffer_ || onNull_ == OnNull::kRelease) release_.CallIfOpen(buffer_);
  }

  /// Where the host puts its buffer.
  char** Buffer() { return &buffer_; }
  /// Where the host puts the length in bytes.
  std::int32_t* Length() { return &length_; }

  /// A copy of the bytes; NUL is a byte like any other. TIOException kNegativeLength, kAbsurdLength or
  /// kMissingBuffer if what the host filled in can't be read.
  std::string Text() const;

 private:
  ReleaseFunction release_;
  OnNull onNull_;
  char* buffer_ = nullptr;
  std::int32_t length_ = 0;
};

/// A read of the public information, translation and error libraries: `call(buffer, length, error)` is the
/// host's function, `release` its ordinal 3. TIOException with the host's text if it refuses.
template <class Call>
std::string ReadText(ReleaseFunction release, Call call) {
  std::string text;
  {
    ErrorText error(kReadErrorBytes);
    ResultPair result(release, ResultPair::OnNull::kRelease);
    if (call(result.Buffer(), result.Length(), error.Buffer()) == 0) error.ThrowWhole();
    text = result.Text();
  }
  release.Check();
  return text;
}

/// An order to the spreadsheet or print library: `call(error)` is the host's function. TException with the
/// host's lines if it refuses.
template <class Call>
void Order(Call call) {
  ErrorText error(kOrderErrorBytes);
  if (call(error.Buffer()) == 0) error.ThrowLines();
}

}  // namespace norvik
