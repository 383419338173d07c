// A list of texts and its text form with escapes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane {

// A sequence of texts in the order of insertion, with all that a standard vector offers; duplicates and empty
// texts are allowed. Splitting and joining go by whole characters (data/character_steps.h).
class StringVector : public std::vector<std::string> {
 public:
  using std::vector<std::string>::vector;
  StringVector() = default;
  // Empty, then fromString.
  StringVector(std::string_view text, std::string_view separator, bool unescape);

  // Splits `text` at each `separator` and replaces the entries. A separator behind a single `\` is part of
  // its entry; with `unescape` each entry's `\\` becomes `\`, then `\` + separator the separator. A separator
  // at the end of `text` makes no empty entry there. An empty `text` or `separator` leaves the list as it
  // was.
  void fromString(std::string_view text, std::string_view separator, bool unescape);

  // The entries joined with `separator`, which stands once more at the end if `trailing`, also for an empty
  // list. In an entry `\` is written `\\` and the separator `\` + separator.
  std::string toString(std::string_view separator, bool trailing) const;

  // The index of the first entry equal to `text`, byte by byte, or -1.
  int indexOf(std::string_view text) const;
};

}  // namespace corvane
