#include "data/string_buffer.h"

#include <algorithm>
#include <cstring>

namespace corvane {

StringBuffer::StringBuffer(unsigned initialSize, unsigned stepSize) : step_(std::max(stepSize, 1U)) {
  addChunk(std::max(initialSize, 1U));
}

void StringBuffer::addChunk(std::size_t capacity) {
  chunks_.push_back({std::make_unique_for_overwrite<char[]>(capacity), capacity});
}

void StringBuffer::append(char byte) {
  append(std::string_view(&byte, 1));
}

void StringBuffer::append(std::string_view text) {
  while (!text.empty()) {
    if (used_ == chunks_.back().capacity) {
      finished_ += used_;
      used_ = 0;
      addChunk(step_);
    }
    const std::size_t taken = std::min(text.size(), chunks_.back().capacity - used_);
    std::memcpy(chunks_.back().bytes.get() + used_, text.data(), taken);
    used_ += taken;
    text.remove_prefix(taken);
  }
}

std::string StringBuffer::toString() const {
  std::string text;
  text.reserve(finished_ + used_);
  for (const Chunk& chunk : chunks_)
    text.append(chunk.bytes.get(), &chunk == &chunks_.back() ? used_ : chunk.capacity);
  return text;
}

}  // namespace corvane
