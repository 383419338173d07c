// The tables of one code page, made from those that ICU has of the Windows code pages.
//
// Used by code_page.cpp alone, which holds what is done with them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/character_bounds.h"

namespace norvik {

/// What a code without a character widens to.
inline constexpr char16_t kReplacement = 0xFFFD;

/// A UTF-16 unit as UTF-8.
struct Utf8Unit {
  /// The bytes, of which `size` count.
  std::array<char, 3> bytes;
  /// 1 to 3.
  std::uint8_t size;
};

/// A code is a byte, or lead byte * 256 + second byte.
struct CodePageTables {
  /// Tables of a code page without a character.
  CodePageTables();

  /// The number of the code page.
  unsigned number = 0;
  /// Where its characters end.
  CharacterBounds bounds;
  /// The UTF-16 unit of each code; U+FFFD where it has no character.
  std::array<char16_t, 65536> unit;
  /// The same as UTF-8.
  std::array<Utf8Unit, 65536> utf8;
  /// The code of each UTF-16 unit; '?' where the code page lacks it.
  std::array<std::uint16_t, 65536> code;
};

/// Writes a character as UTF-8 to `out`, which has room for 4 bytes, and returns how many it takes.
std::size_t PutUtf8(std::uint32_t character, char* out);

/// Makes the tables. Throws std::invalid_argument for a code page that can't be served by tables of bytes and
/// pairs whose first 128 are ASCII, or that ICU does not have.
std::unique_ptr<CodePageTables> MakeCodePageTables(unsigned number);

}  // namespace norvik
