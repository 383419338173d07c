#include "platform/code_page.h"

#include <iconv.h>

#include <array>
#include <atomic>
#include <bit>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>

namespace norvik {
namespace {

constexpr unsigned kUtf8CodePage = 65001;
constexpr char16_t kReplacement = 0xFFFD;
constexpr char16_t kNone = 0;  // in a table: no such character; U+0000 itself is byte 0 and never looked up

// One code page in tables. A code is a byte, or lead byte * 256 + second byte.
struct CodePage {
  unsigned number = 0;
  bool doubleByte = false;
  std::array<char16_t, 65536> unit{};       // code to UTF-16 unit
  std::array<std::uint16_t, 65536> code{};  // UTF-16 unit to code
  std::array<std::uint32_t, 65536> utf8{};  // code to the bytes of UTF-8, first byte lowest
  std::array<std::uint8_t, 65536> utf8Size{};
  std::array<bool, 256> lead{};

  char16_t Single(unsigned char byte) const { return unit[byte]; }
  char16_t Double(unsigned char first, unsigned char second) const { return unit[first * 256U + second]; }
};

std::uint8_t PutUtf8(std::uint32_t character, char* out) {
  const auto put = [&](int at, std::uint32_t byte) { out[at] = static_cast<char>(byte); };
  if (character < 0x80) {
    put(0, character);
    return 1;
  }
  if (character < 0x800) {
    put(0, 0xC0 | character >> 6);
    put(1, 0x80 | (character & 0x3F));
    return 2;
  }
  if (character < 0x10000) {
    put(0, 0xE0 | character >> 12);
    put(1, 0x80 | (character >> 6 & 0x3F));
    put(2, 0x80 | (character & 0x3F));
    return 3;
  }
  put(0, 0xF0 | character >> 18);
  put(1, 0x80 | (character >> 12 & 0x3F));
  put(2, 0x80 | (character >> 6 & 0x3F));
  put(3, 0x80 | (character & 0x3F));
  return 4;
}

class Converter {
 public:
  explicit Converter(unsigned codePage)
      : handle_(iconv_open("UTF-16LE", ("CP" + std::to_string(codePage)).c_str())) {
    if (handle_ == reinterpret_cast<iconv_t>(-1))
      throw std::invalid_argument("code page " + std::to_string(codePage) + " is not known here");
  }
  ~Converter() { iconv_close(handle_); }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // The one UTF-16 unit that the bytes stand for; kNone where they are not one whole character.
  char16_t Unit(std::string_view bytes) {
    std::array<char, 2> in{};
    std::memcpy(in.data(), bytes.data(), bytes.size());
    std::array<unsigned char, 8> out{};
    char* from = in.data();
    char* to = reinterpret_cast<char*>(out.data());
    std::size_t left = bytes.size();
    std::size_t room = out.size();
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    if (iconv(handle_, &from, &left, &to, &room) != 0 || left != 0 || room != out.size() - 2) return kNone;
    return static_cast<char16_t>(out[0] | out[1] << 8);
  }

 private:
  iconv_t handle_;
};

void Enter(CodePage& page, unsigned code, char16_t unit) {
  page.unit[code] = unit;
  if (page.code[unit] == 0) page.code[unit] = static_cast<std::uint16_t>(code);
  std::array<char, 4> bytes{};
  page.utf8Size[code] = PutUtf8(unit, bytes.data());
  std::memcpy(&page.utf8[code], bytes.data(), bytes.size());
}

std::unique_ptr<CodePage> MakeCodePage(unsigned number) {
  Converter converter(number);
  auto page = std::make_unique<CodePage>();
  page->number = number;
  for (unsigned byte = 0; byte < 256; ++byte) {
    const char single = static_cast<char>(byte);
    if (const char16_t unit = converter.Unit({&single, 1})) Enter(*page, byte, unit);
  }
  if (number == 936) Enter(*page, 0x80, 0x20AC);
  for (unsigned first = 0x80; first < 256; ++first) {
    if (page->unit[first] != kNone) continue;
    for (unsigned second = 0x40; second < 256; ++second) {
      const std::array<char, 2> pair{static_cast<char>(first), static_cast<char>(second)};
      const char16_t unit = converter.Unit({pair.data(), pair.size()});
      if (unit == kNone) continue;
      Enter(*page, first * 256 + second, unit);
      page->lead[first] = page->doubleByte = true;
    }
  }
  return page;
}

// The tables of a code page, made at first use and kept until the process ends.
const CodePage& Tables(unsigned number) {
  static std::mutex guard;
  static std::map<unsigned, std::unique_ptr<CodePage>> pages;
  const std::lock_guard<std::mutex> lock(guard);
  auto& page = pages[number];
  if (!page) {
    try {
      page = MakeCodePage(number);
    } catch (...) {
      pages.erase(number);
      throw;
    }
  }
  return *page;
}

// The ANSI code page; null stands for 65001, which has no tables.
std::atomic<const CodePage*>& AnsiTables() {
  static std::atomic<const CodePage*> tables(&Tables(936));
  return tables;
}

const CodePage* TablesFor(unsigned codePage) {
  if (codePage == 0) return AnsiTables().load(std::memory_order_relaxed);
  return codePage == kUtf8CodePage ? nullptr : &Tables(codePage);
}

// A character of UTF-8 and the bytes it takes; U+FFFD and one byte where there is no well-formed sequence.
struct Utf8Character {
  std::uint32_t value;
  std::size_t size;
  bool valid;
};

Utf8Character Utf8At(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t offset) { return static_cast<unsigned char>(text[at + offset]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return {first, 1, true};
  const std::size_t size = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  constexpr std::array<std::uint32_t, 5> kSmallest{0, 0, 0x80, 0x800, 0x10000};
  if (first < 0xC2 || first > 0xF4 || text.size() - at < size) return {kReplacement, 1, false};
  std::uint32_t value = first & (0x7FU >> size);
  for (std::size_t offset = 1; offset < size; ++offset) {
    if ((byte(offset) & 0xC0) != 0x80) return {kReplacement, 1, false};
    value = value << 6 | (byte(offset) & 0x3FU);
  }
  if (value < kSmallest[size] || value > 0x10FFFF || (value >= 0xD800 && value < 0xE000))
    return {kReplacement, 1, false};
  return {value, size, true};
}

// The code of the character at `at` and its bytes; code 0 where a byte of 0x80 or above starts none.
struct AnsiCode {
  unsigned code;
  std::size_t size;
};

AnsiCode CodeAt(const CodePage& page, std::string_view text, std::size_t at) {
  const auto first = static_cast<unsigned char>(text[at]);
  if (page.unit[first] != kNone) return {first, 1};
  if (page.lead[first] && at + 1 < text.size()) {
    const unsigned code = first * 256U + static_cast<unsigned char>(text[at + 1]);
    if (page.unit[code] != kNone) return {code, 2};
  }
  return {0, 1};
}

void AppendCode(unsigned code, std::string& out) {
  if (code > 0xFF) out += static_cast<char>(code >> 8);
  out += static_cast<char>(code & 0xFF);
}

void AppendUnit(std::uint32_t character, std::u16string& out) {
  if (character < 0x10000) {
    out += static_cast<char16_t>(character);
    return;
  }
  out += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
  out += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
}

// The character at `at` of UTF-16 and the units it takes; U+FFFD for a lone surrogate.
Utf8Character Utf16At(std::u16string_view text, std::size_t at) {
  const char32_t first = text[at];
  if (first < 0xD800 || first >= 0xE000) return {first, 1, true};
  if (first < 0xDC00 && at + 1 < text.size() && text[at + 1] >= 0xDC00 && text[at + 1] < 0xE000)
    return {0x10000 + ((first - 0xD800) << 10) + (text[at + 1] - 0xDC00U), 2, true};
  return {kReplacement, 1, false};
}

void NarrowCharacter(const CodePage& page, Utf8Character character, std::string& out) {
  const unsigned code = character.valid && character.value < 0x10000 ? page.code[character.value] : 0U;
  if (character.valid && character.value == 0)
    out += '\0';
  else if (code == 0)
    out += '?';
  else
    AppendCode(code, out);
}

// The code of a character of UTF-8; 0 where the page lacks it. A character never takes more bytes in a page
// than in UTF-8.
unsigned NarrowCode(const CodePage& page, std::string_view utf8, std::size_t& at) {
  const auto byte = [&](std::size_t offset) { return static_cast<unsigned char>(utf8[at + offset]); };
  // Most are of three bytes; E0 and ED, which don't go with every second byte, take the long way.
  if (at + 3 <= utf8.size() && byte(0) > 0xE0 && byte(0) < 0xF0 && byte(0) != 0xED &&
      (byte(1) & 0xC0) == 0x80 && (byte(2) & 0xC0) == 0x80) {
    const unsigned unit = (byte(0) & 0x0FU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU);
    at += 3;
    return page.code[unit];
  }
  const Utf8Character character = Utf8At(utf8, at);
  at += character.size;
  return character.valid && character.value < 0x10000 ? page.code[character.value] : 0U;
}

void AppendNarrow(const CodePage& page, std::string_view utf8, std::string& out) {
  const std::size_t before = out.size();
  out.resize(before + utf8.size());
  char* to = out.data() + before;
  for (std::size_t at = 0; at < utf8.size();) {
    const std::size_t plain = AsciiRun(utf8.substr(at));
    std::memcpy(to, utf8.data() + at, plain);
    to += plain;
    at += plain;
    while (at < utf8.size() && static_cast<signed char>(utf8[at]) < 0) {
      const unsigned code = NarrowCode(page, utf8, at);
      if (code > 0xFF) *to++ = static_cast<char>(code >> 8);
      *to++ = code == 0 ? '?' : static_cast<char>(code & 0xFF);
    }
  }
  out.resize(static_cast<std::size_t>(to - out.data()));
}

std::size_t DecodeValidUtf8(std::string_view text, std::size_t& at, std::size_t end, char* out) {
  char* to = out;
  while (at < end) {
    const Utf8Character character = Utf8At(text, at);
    to += PutUtf8(character.value, to);
    at += character.size;
  }
  return static_cast<std::size_t>(to - out);
}

}  // namespace

void SetAnsiCodePage(unsigned codePage) {
  if (codePage == 0) throw std::invalid_argument("code page 0 names no code page");
  AnsiTables().store(TablesFor(codePage), std::memory_order_relaxed);
}

unsigned AnsiCodePage() {
  const CodePage* page = TablesFor(0);
  return page ? page->number : kUtf8CodePage;
}

std::u16string Widen(std::string_view text, unsigned codePage) {
  const CodePage* page = TablesFor(codePage);
  std::u16string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    if (!page) {
      const Utf8Character character = Utf8At(text, at);
      AppendUnit(character.value, out);
      at += character.size;
      continue;
    }
    const AnsiCode found = CodeAt(*page, text, at);
    out += text[at] == 0 ? u'\0' : found.code == 0 ? kReplacement : page->unit[found.code];
    at += found.size;
  }
  return out;
}

std::string Narrow(std::u16string_view text, unsigned codePage) {
  const CodePage* page = TablesFor(codePage);
  std::string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Character character = Utf16At(text, at);
    if (page) {
      NarrowCharacter(*page, character, out);
    } else if (!character.valid) {
      out += '?';
    } else {
      std::array<char, 4> bytes{};
      out.append(bytes.data(), PutUtf8(character.value, bytes.data()));
    }
    at += character.size;
  }
  return out;
}

std::string Utf8FromAnsi(std::string_view text) {
  std::string out(3 * (text.size() + 1), '\0');
  std::size_t at = 0;
  out.resize(DecodeToUtf8(text, at, text.size(), out.data()));
  return out;
}

std::string AnsiFromUtf8(std::string_view utf8) {
  std::string out;
  AppendAnsiFromUtf8(utf8, out);
  return out;
}

void AppendAnsiFromUtf8(std::string_view utf8, std::string& out) {
  const CodePage* page = TablesFor(0);
  if (page) {
    AppendNarrow(*page, utf8, out);
    return;
  }
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = Utf8At(utf8, at);
    if (character.valid)
      out.append(utf8.data() + at, character.size);
    else
      out += "\xEF\xBF\xBD";
    at += character.size;
  }
}

std::size_t DecodeToUtf8(std::string_view text, std::size_t& at, std::size_t limit, char* out) {
  const CodePage* page = TablesFor(0);
  const std::size_t end = text.size() - at < limit ? text.size() : at + limit;
  if (!page) return DecodeValidUtf8(text, at, end, out);
  char* to = out;
  while (at < end) {
    const std::size_t plain = AsciiRun(text.substr(at, end - at));
    std::memcpy(to, text.data() + at, plain);
    to += plain;
    at += plain;
    while (at < end && static_cast<signed char>(text[at]) < 0) {
      const AnsiCode found = CodeAt(*page, text, at);
      at += found.size;
      if (found.code == 0) {
        to += PutUtf8(kReplacement, to);
        continue;
      }
      std::memcpy(to, &page->utf8[found.code], 3);
      to += page->utf8Size[found.code];
    }
  }
  return static_cast<std::size_t>(to - out);
}

std::size_t AsciiRun(std::string_view text) {
  std::size_t at = 0;
  for (; at + 8 <= text.size(); at += 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, sizeof word);
    word &= 0x8080808080808080U;
    if (word != 0) return at + static_cast<std::size_t>(std::countr_zero(word)) / 8;
  }
  if (at + 4 <= text.size()) {
    std::uint32_t word = 0;
    std::memcpy(&word, text.data() + at, sizeof word);
    word &= 0x80808080U;
    if (word != 0) return at + static_cast<std::size_t>(std::countr_zero(word)) / 8;
    at += 4;
  }
  while (at < text.size() && static_cast<signed char>(text[at]) >= 0) ++at;
  return at;
}

bool IsLeadByte(unsigned char byte) {
  const CodePage* page = TablesFor(0);
  return page && page->lead[byte];
}

bool IsDoubleByteCodePage() {
  const CodePage* page = TablesFor(0);
  return page && page->doubleByte;
}

std::size_t CharacterLength(std::string_view text, std::size_t at) {
  if (at >= text.size()) return 0;
  const CodePage* page = TablesFor(0);
  return page ? CodeAt(*page, text, at).size : Utf8At(text, at).size;
}

std::size_t EndOfValidRun(std::string_view text, std::size_t from) {
  const CodePage* page = TablesFor(0);
  std::size_t at = from;
  while (at < text.size() && static_cast<signed char>(text[at]) < 0) {
    if (page) {
      const AnsiCode found = CodeAt(*page, text, at);
      if (found.code == 0) return at;
      at += found.size;
    } else {
      const Utf8Character character = Utf8At(text, at);
      if (!character.valid) return at;
      at += character.size;
    }
  }
  return at;
}

}  // namespace norvik
