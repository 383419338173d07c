#include "demohost/libraries/libraries.h"
#include "demohost/words.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

std::uint8_t Initialize(std::uint32_t) {
  return 1;
}

void Release(char* buffer) {
  ReleaseBuffer(buffer);
}

// The line's text where it is a key that has one, else the line.
std::string LineText(const std::string& line) {
  const std::string text = CurrentText(line);
  return text.empty() ? line : text;
}

// A reason code's text; empty for one that isn't known.
std::uint8_t ReasonText(char** buffer, std::int32_t* length, const char* code, char* error, std::uint8_t) {
  return Answered(buffer, length, error, kShortError,
                  [&] { return norvik::AnsiFromUtf8(CurrentText(norvik::Utf8FromAnsi(Text(code)))); });
}

// A list of keys joined with a line end, each escaped; an entry may hold several lines itself. Every line
// that is a key becomes its text.
std::uint8_t ErrorText(char** buffer, std::int32_t* length, const char* keys, char* error, std::uint8_t) {
  return Answered(buffer, length, error, kShortError, [&] {
    std::string text;
    for (const std::string& entry : corvane::StringVector(Text(keys), "\r\n", true)) {
      for (const std::string& line : Split(norvik::Utf8FromAnsi(entry), "\r\n")) {
        if (!text.empty()) text += "\r\n";
        text += LineText(line);
      }
    }
    return norvik::AnsiFromUtf8(text);
  });
}

}  // namespace

std::vector<norvik_ordinal> ErrorTable() {
  std::vector<norvik_ordinal> table = {Entry<&Initialize>(1), Entry<&Release>(3), Entry<&ReasonText>(4),
                                       Entry<&ErrorText>(5)};
  AddIdle(table, 1, 8);
  return table;
}

}  // namespace demohost
