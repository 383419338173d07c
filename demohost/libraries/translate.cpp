#include "demohost/libraries/chinese.h"
#include "demohost/libraries/libraries.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

std::int32_t Initialize(std::uint32_t) {
  return 0;
}

void Release(char* buffer) {
  ReleaseBuffer(buffer);
}

// The text of a key, empty where it has none; a section is the beginning of its keys. A caption that a form
// keeps as designed is a key, too.
std::uint8_t Lookup(char** buffer, std::int32_t* length, const char* section, const char* key, char* error) {
  return Answered(buffer, length, error, kShortError, [&] {
    const std::string name = Text(key);
    if (name.rfind(Text(section), 0) != 0) return std::string();
    return norvik::AnsiFromUtf8(CurrentText(norvik::Utf8FromAnsi(name)));
  });
}

// Direction 0 makes simplified characters of what is sent to the bank, 1 traditional ones of its answer.
std::uint8_t Convert(char** buffer, std::int32_t* length, const char* text, std::uint8_t direction,
                     char* error) {
  return Answered(buffer, length, error, kShortError, [&] {
    return direction == 0 ? SimplifiedFromTraditional(Text(text)) : TraditionalFromSimplified(Text(text));
  });
}

}  // namespace

std::vector<norvik_ordinal> TranslateTable() {
  std::vector<norvik_ordinal> table = {Entry<&Initialize>(1), Entry<&Release>(3), Entry<&Lookup>(4),
                                       Entry<&Convert>(6)};
  AddIdle(table, 1, 8);
  return table;
}

}  // namespace demohost
