#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "data/corvane.h"
#include "platform/host_api.h"

/// What the proxies share: the function table of a library, the texts that go out to it and the buffers that
/// come back.
namespace norvik {

/// The most bytes that an answer of the host may have: 256 MiB.
inline constexpr std::int32_t kLongestAnswer = 256 * 1024 * 1024;

/// The functions of one library, in the order of its ordinals.
class FunctionTable {
 public:
  /// Looks all of `ordinals` up, the list living as long as the table; false if any is missing, and the table
  /// then holds none of them.
  bool Resolve(norvik_handle module, std::span<const std::uint32_t> ordinals);

  /// The function with that ordinal. TException kNotInitialised if the table doesn't hold it.
  template <class Signature>
  Signature* Function(std::uint32_t ordinal) const {
    return reinterpret_cast<Signature*>(Find(ordinal));
  }

 private:
  void* Find(std::uint32_t ordinal) const;

  std::span<const std::uint32_t> m_ordinals;
  std::vector<void*> m_functions;
};

/// The text as the host takes it. TException kNulInText if it holds a NUL: the host would read only what
/// stands before.
const char* Outgoing(const std::string& text);

/// The zeroed buffer into which the host writes why it refuses.
class ErrorText {
 public:
  /// `size` is what the host is told to have, at most 256 bytes.
  explicit ErrorText(std::size_t size) : m_size(size) {}

  char* Buffer() { return m_buffer.data(); }

  /// Throws TIOException with the host's text as its key and an empty detail.
  [[noreturn]] void ThrowWhole() const;

  /// Throws TException with one key for each line of the host's text.
  [[noreturn]] void ThrowLines() const;

 private:
  // Up to the terminator, or `size` bytes where the host forgot it; kNoReason if there is nothing.
  std::string Text() const;

  std::size_t m_size;
  std::array<char, 512> m_buffer = {};
};

using ReleaseFunction = void(char* buffer);

/// The buffer and length that the host fills, given back to it once on each path.
class ResultPair {
 public:
  enum class OnNull { kRelease, kSkip };

  /// `onNull` tells whether a null buffer is given back as well.
  ResultPair(ReleaseFunction* release, OnNull onNull) : m_release(release), m_onNull(onNull) {}
  ResultPair(const ResultPair&) = delete;
  ResultPair& operator=(const ResultPair&) = delete;
  ~ResultPair() {
    if (m_buffer || m_onNull == OnNull::kRelease) m_release(m_buffer);
  }

  char** Buffer() { return &m_buffer; }
  std::int32_t* Length() { return &m_length; }

  /// A copy of the bytes; NUL is a byte like any other. TIOException kNegativeLength, kAbsurdLength or
  /// kMissingBuffer if what the host filled in can't be read.
  std::string Text() const;

 private:
  ReleaseFunction* m_release;
  OnNull m_onNull;
  char* m_buffer = nullptr;
  std::int32_t m_length = 0;
};

/// A read of the public information, translation and error libraries: `call(buffer, length, error)` is the
/// host's function, `release` its ordinal 3. TIOException with the host's text if it refuses.
template <class Call>
std::string ReadText(ReleaseFunction* release, Call call) {
  ErrorText error(255);
  ResultPair result(release, ResultPair::OnNull::kRelease);
  if (call(result.Buffer(), result.Length(), error.Buffer()) == 0) error.ThrowWhole();
  return result.Text();
}

/// An order to the spreadsheet or print library: `call(error)` is the host's function. TException with the
/// host's lines if it refuses.
template <class Call>
void Order(Call call) {
  ErrorText error(256);
  if (call(error.Buffer()) == 0) error.ThrowLines();
}

}  // namespace norvik
