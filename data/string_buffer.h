// A byte buffer that only grows.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace corvane {

// Bytes in a chain of chunks: what was written is never moved until toString makes the whole text once.
class StringBuffer {
 public:
  // The first chunk holds `initialSize` bytes, each later one `stepSize`; a size of 0 counts as 1.
  StringBuffer(unsigned initialSize, unsigned stepSize);
  StringBuffer(const StringBuffer&) = delete;
  StringBuffer& operator=(const StringBuffer&) = delete;

  void append(char byte);
  void append(std::string_view text);

  // All bytes appended so far, in order; empty where nothing was appended.
  std::string toString() const;

 private:
  struct Chunk {
    std::unique_ptr<char[]> bytes;
    std::size_t capacity;
  };
  void AddChunk(std::size_t capacity);

  std::vector<Chunk> chunks_;
  std::size_t used_ = 0;      // bytes written into the last chunk
  std::size_t finished_ = 0;  // bytes in the chunks before it
  std::size_t step_;
};

}  // namespace corvane
