// Splitting and joining. The input's first line is the separator, the rest the text.
#include "data/string_vector.h"

#include <algorithm>
#include <string>

#include "data/string_functions.h"
#include "fuzz/target.h"
#include "platform/code_page.h"

namespace {

using corvane::StringVector;

bool HoldsBackslash(std::string_view text) {
  return corvane::findText(text, "\\") != std::string_view::npos;
}

// True if no byte opens a two-byte character without a second byte: such a byte would make one with the
// backslash of an escape.
bool IsWhole(std::string_view text) {
  for (std::size_t at = 0, size = 0; at < text.size(); at += size) {
    size = norvik::CharacterLength(text, at);
    if (size == 1 && norvik::IsLeadByte(static_cast<unsigned char>(text[at]))) return false;
  }
  return true;
}

// Without backslashes and half characters in the separator, the entries and the separators between them are
// the text.
void JoinWhatWasSplit(std::string_view text, std::string_view separator) {
  const StringVector entries(text, separator, false);
  if (text.empty() || separator.empty()) {
    Require(entries.empty(), "nothing to split leaves the list empty");
    return;
  }
  Require(entries.size() <= text.size() / separator.size() + 1, "an entry for each separator and the end");
  if (HoldsBackslash(text) || HoldsBackslash(separator) || !IsWhole(separator)) return;
  const std::string joined = entries.toString(separator, false);
  Require(text == joined || text == joined + std::string(separator), "joining gives the text that was split");
}

// Entries of whole characters without backslashes come back, whatever else is in them.
void SplitWhatWasJoined(std::string_view text) {
  for (const std::string_view separator : {";", "|"}) {
    const StringVector entries(text, "\n", false);
    if (entries.empty() || HoldsBackslash(text) || !std::all_of(entries.begin(), entries.end(), IsWhole))
      return;
    const StringVector again(entries.toString(separator, true), separator, true);
    Require(again == entries, "splitting gives the entries that were joined");
  }
}

}  // namespace

FUZZ_TEXT(text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view separator = text.substr(0, end);
  const std::string_view rest = text.substr(std::min(end + 1, text.size()));
  for (const unsigned codePage : {936U, 949U, 65001U}) {
    norvik::SetAnsiCodePage(codePage);
    JoinWhatWasSplit(rest, separator);
    SplitWhatWasJoined(rest);
    (void)StringVector(rest, separator, true).toString(separator, true);
  }
}
