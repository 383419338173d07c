// A list of texts and its text form: entries joined with a separator, escaped where an entry holds it.
//
// For keys, columns and the lines of a host's failure. Splitting and joining go by whole characters
// (data/string_functions.h).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/export.h"

namespace corvane {

/// A sequence of texts in the order of insertion, with all that a standard vector offers; duplicates and
/// empty texts are allowed.
class CORVANE_EXPORT StringVector : public std::vector<std::string> {
 public:
  /// The constructors of the standard vector.
  using std::vector<std::string>::vector;
  /// An empty list.
  StringVector() = default;
  /// Empty, then fromString.
  StringVector(std::string_view text, std::string_view separator, bool unescape);

  /// Splits `text` at each `separator` and replaces the entries. A separator after a single `\` is part of
  /// its entry; with `unescape` each entry's `\\` becomes `\`, then `\` + separator the separator. A
  /// separator at the end of `text` makes no empty entry there. An empty `text` or `separator` leaves the
  /// list as it was.
  void fromString(std::string_view text, std::string_view separator, bool unescape);

  /// The entries joined with `separator`, which stands once more at the end if `trailing`, also for an empty
  /// list. In an entry `\` is written `\\` and the separator `\` + separator.
  std::string toString(std::string_view separator, bool trailing) const;

  /// The index of the first entry equal to `text`, byte by byte, or -1.
  int indexOf(std::string_view text) const;
};

}  // namespace corvane
