// Narrow text and its code page: where its characters are, and the ways to UTF-16 and UTF-8 and back.
//
// For documents, the toolkit and hosts. A second byte may look like an ASCII character (the second byte of
// 126 pairs of code page 936 is 0x5C), so whoever searches or cuts narrow text steps by CharacterLength, or
// uses data/string_functions.h, which does. Where a character ends is said in platform/character_bounds.h.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/character_bounds.h"
#include "platform/export.h"

namespace norvik {

/// Sets the code page of all narrow text in the process, 936 unless it is set. Served are 65001 (UTF-8) and
/// the Windows code pages whose characters are bytes and pairs and begin with ASCII: 874, 932, 936, 949, 950,
/// 1250 to 1257 and the like, with the tables that ICU has of them. Refused are 1258, which writes accents
/// apart from their letters, and those of EBCDIC, UTF-16, shifted or longer codes. In code page 936 each of
/// the 23,940 pairs, 0x80 (the euro sign) and 0xFF come back unchanged, the user-defined characters among
/// them.
///
/// One rule holds for what a code page lacks: a character without a code point widens to one U+FFFD, one that
/// it cannot express (a surrogate pair is one, a lone surrogate too) narrows to one '?', and its neighbours
/// stay whole.
///
/// To be called at start, before any other thread converts text. Throws std::invalid_argument for a code page
/// that is not served, and changes nothing then.
NORVIK_EXPORT void SetAnsiCodePage(unsigned codePage);

/// The code page of narrow text.
NORVIK_EXPORT unsigned AnsiCodePage();

/// The UTF-16 form of `text`. Code page 0 stands for AnsiCodePage(). Throws std::invalid_argument as above.
NORVIK_EXPORT std::u16string Widen(std::string_view text, unsigned codePage = 0);

/// The bytes of `text` in the code page; 0 and failures as for Widen.
NORVIK_EXPORT std::string Narrow(std::u16string_view text, unsigned codePage = 0);

/// Narrow text to UTF-8, by the rule above.
NORVIK_EXPORT std::string Utf8FromAnsi(std::string_view text);

/// UTF-8 to narrow text, by the rule above.
NORVIK_EXPORT std::string AnsiFromUtf8(std::string_view utf8);

/// Appends the narrow form of `utf8` to `out`.
NORVIK_EXPORT void AppendAnsiFromUtf8(std::string_view utf8, std::string& out);

/// Turns at most `limit` bytes of `text` from `at` on into UTF-8 and moves `at` past them; a character is
/// never cut, so one byte more may be taken. Returns the bytes written to `out`, which must have room for 3 *
/// (limit + 1).
NORVIK_EXPORT std::size_t DecodeToUtf8(std::string_view text, std::size_t& at, std::size_t limit, char* out);

/// Bytes of the run of ASCII at the beginning of `text`.
NORVIK_EXPORT std::size_t AsciiRun(std::string_view text);

/// Where the characters of the ANSI code page end; null in UTF-8. Valid until the process ends.
NORVIK_EXPORT const CharacterBounds* AnsiBounds();

/// True for a byte that opens a two-byte character of the ANSI code page.
NORVIK_EXPORT bool IsLeadByte(unsigned char byte);

/// Bytes of the character that starts at `at`: as CharacterBounds says, in UTF-8 the whole sequence or 1
/// where there is none; 0 at or past the end.
NORVIK_EXPORT std::size_t CharacterLength(std::string_view text, std::size_t at);

/// The end of the run of bytes of 0x80 and above, together with their second bytes, that starts at `from` and
/// holds only characters that the ANSI code page has; `from` itself where the first is not one.
NORVIK_EXPORT std::size_t EndOfValidRun(std::string_view text, std::size_t from);

}  // namespace norvik
