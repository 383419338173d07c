#include "data/string_vector.h"

#include <algorithm>
#include <utility>

#include "data/string_buffer.h"
#include "data/string_functions.h"
#include "platform/code_page.h"

namespace corvane {
namespace {

std::string unescaped(std::string_view token, std::string_view separator) {
  return replaceAll(replaceAll(token, "\\\\", "\\"), "\\" + std::string(separator), separator);
}

// True if the character before `at`, itself the start of a character, is a backslash; `from` is the start of
// a character at or before that one.
bool followsBackslash(std::string_view text, std::size_t at, std::size_t from) {
  if (at == 0 || text[at - 1] != '\\') return false;
  std::size_t last = from;
  for (std::size_t next = from; next < at; next += norvik::CharacterLength(text, next)) last = next;
  return last == at - 1;
}

// After one backslash, but not after two: only the two characters before the hit count, whatever they belong
// to. `before` is the start of a character, two characters or more before the hit if there are so many.
bool isEscaped(std::string_view text, std::size_t hit, std::size_t before) {
  return followsBackslash(text, hit, before) && !followsBackslash(text, hit - 1, before);
}

}  // namespace

StringVector::StringVector(std::string_view text, std::string_view separator, bool unescape) {
  fromString(text, separator, unescape);
}

void StringVector::fromString(std::string_view text, std::string_view separator, bool unescape) {
  if (text.empty() || separator.empty()) return;
  const std::string source(text);  // both texts may be entries of this list
  const std::string mark(separator);
  text = source;
  separator = mark;
  clear();
  const auto push = [&](std::string_view token) {
    push_back(unescape ? unescaped(token, separator) : std::string(token));
  };
  if (text.size() < separator.size()) {
    push_back(source);
    return;
  }
  std::size_t start = 0;
  std::size_t before = 0;  // the hit before the last one
  std::size_t last = 0;
  for (std::size_t hit = findText(text, separator); hit != std::string_view::npos;
       hit = findText(text, separator, last + separator.size())) {
    const bool escaped = isEscaped(text, hit, before);
    before = std::exchange(last, hit);
    if (escaped) continue;
    push(text.substr(start, hit - start));
    start = hit + separator.size();
  }
  if (start < text.size()) push(text.substr(start));
}

std::string StringVector::toString(std::string_view separator, bool trailing) const {
  StringBuffer buffer(10240, 10240);
  const std::string escaped = "\\" + std::string(separator);
  for (const std::string& entry : *this) {
    buffer.append(replaceAll(replaceAll(entry, "\\", "\\\\"), separator, escaped));
    if (&entry != &back()) buffer.append(separator);
  }
  if (trailing) buffer.append(separator);
  return buffer.toString();
}

int StringVector::indexOf(std::string_view text) const {
  const auto found = std::find(begin(), end(), text);
  return found == end() ? -1 : static_cast<int>(found - begin());
}

}  // namespace corvane
