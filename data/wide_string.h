// UTF-16 text, made of narrow text in any code page and turned back into it.
//
// For callers that need UTF-16 units; documents hold narrow text alone.
#pragma once

#include <string>
#include <string_view>

#include "data/export.h"

namespace corvane {

/// UTF-16 units with all that a standard string offers. Code page 0 is the ANSI code page; what a code page
/// lacks is said in platform/code_page.h, which also names the failure for an unknown one.
class CORVANE_EXPORT WideString : public std::u16string {
 public:
  /// An empty text.
  WideString() = default;
  /// `length` bytes; a negative `length` takes the bytes before the first NUL.
  WideString(const char* bytes, int length, unsigned codePage);
  /// The UTF-16 form of `text`.
  WideString(std::string_view text, unsigned codePage);
  /// A copy of `length` units; none for a length of 0 or below.
  WideString(const char16_t* units, int length);

  /// Returns the bytes of the text in a code page.
  std::string toString(unsigned codePage) const;
};

}  // namespace corvane
