// A byte buffer that only grows.
//
// For building long texts piece by piece, as joining and replacing do. What was written can't be changed or
// read back before toString.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/export.h"

namespace corvane {

/// Bytes in a chain of chunks: what was written is never moved until toString makes the whole text once.
class CORVANE_EXPORT StringBuffer {
 public:
  /// The first chunk holds `initialSize` bytes, each later one `stepSize`; a size of 0 counts as 1.
  StringBuffer(unsigned initialSize, unsigned stepSize);
  /// A buffer is not copied: its text is.
  StringBuffer(const StringBuffer&) = delete;
  /// A buffer is not assigned to.
  StringBuffer& operator=(const StringBuffer&) = delete;

  /// Appends one byte.
  void append(char byte);
  /// Appends the bytes of `text`, which may be empty.
  void append(std::string_view text);

  /// All bytes appended so far, in order; empty where nothing was appended.
  std::string toString() const;

 private:
  struct Chunk {
    std::unique_ptr<char[]> bytes;
    std::size_t capacity;
  };
  void addChunk(std::size_t capacity);

  std::vector<Chunk> chunks_;
  std::size_t used_ = 0;      // bytes written into the last chunk
  std::size_t finished_ = 0;  // bytes in the chunks before it
  std::size_t step_;
};

}  // namespace corvane
