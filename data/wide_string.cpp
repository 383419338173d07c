#include "data/wide_string.h"

#include "platform/code_page.h"

namespace corvane {

WideString::WideString(const char* bytes, int length, unsigned codePage)
    : WideString(
          length < 0 ? std::string_view(bytes) : std::string_view(bytes, static_cast<std::size_t>(length)),
          codePage) {}

WideString::WideString(std::string_view text, unsigned codePage)
    : std::u16string(norvik::Widen(text, codePage)) {}

WideString::WideString(const char16_t* units, int length)
    : std::u16string(units, length < 0 ? 0 : static_cast<std::size_t>(length)) {}

std::string WideString::toString(unsigned codePage) const {
  return norvik::Narrow(*this, codePage);
}

}  // namespace corvane
