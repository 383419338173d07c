// Where the characters of a code page of bytes and pairs end.
//
// The one place that decides it, for the reader, the writer and all that searches, cuts or converts narrow
// text: inline, two look-ups in 256 bytes. UTF-8 is not a matter of pairs; platform/code_page.h deals with
// it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace norvik {

/// A lead byte and a second byte that follows it are one character, also where the code page gives the pair
/// no code point. Every other byte is one by itself: a lead byte at the end of a text or before a byte that
/// can't be a second byte, such as '<', is lost alone.
class CharacterBounds {
 public:
  /// Makes `byte` a lead byte; it may be a second byte too.
  void SetLead(unsigned char byte) { kinds_[byte] |= kLead; }
  /// Makes `byte` a second byte; it may be a lead byte too.
  void SetSecond(unsigned char byte) { kinds_[byte] |= kSecond; }

  /// True for a byte that opens a pair.
  bool IsLead(unsigned char byte) const { return (kinds_[byte] & kLead) != 0; }

  /// Bytes of the character that starts at `at`, which is less than the size of `text`: 1 or 2.
  std::size_t Length(std::string_view text, std::size_t at) const {
    const bool pair = IsLead(static_cast<unsigned char>(text[at])) && at + 1 < text.size() &&
                      (kinds_[static_cast<unsigned char>(text[at + 1])] & kSecond) != 0;
    return pair ? 2 : 1;
  }

 private:
  static constexpr std::uint8_t kLead = 1;
  static constexpr std::uint8_t kSecond = 2;

  std::array<std::uint8_t, 256> kinds_{};
};

}  // namespace norvik
