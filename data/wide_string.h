// UTF-16 text with its ways from and to narrow text.
#pragma once

#include <string>
#include <string_view>

namespace corvane {

// UTF-16 units with all that a standard string offers. Code page 0 is the ANSI code page; what a code page
// lacks is told in platform/code_page.h, which also names the failure for an unknown one.
class WideString : public std::u16string {
 public:
  WideString() = default;
  // `length` bytes; a negative `length` takes the bytes before the first NUL.
  WideString(const char* bytes, int length, unsigned codePage);
  WideString(std::string_view text, unsigned codePage);
  // A copy of `length` units; none for a length of 0 or below.
  WideString(const char16_t* units, int length);

  std::string toString(unsigned codePage) const;
};

}  // namespace corvane
