// What several parts of the host do with a text: take it apart, compare it without case, carry it over to
// Qt. Knows no key and no language; those are in texts.h and host_words.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

class QString;

namespace demohost {

/// The pieces between the separators, empty ones included; one empty piece for an empty text. UTF-8 or ASCII:
/// no byte of a longer character looks like a separator.
std::vector<std::string> Split(std::string_view text, char separator);

/// The same with a separator of several characters, which must not be empty.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

/// The text with the letters A to Z as small ones; every other byte stays.
std::string LowerAscii(std::string_view text);

/// UTF-8 as a text of Qt; a byte that isn't UTF-8 becomes U+FFFD.
QString ToQt(std::string_view utf8);

}  // namespace demohost
