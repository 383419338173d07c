#include "platform/code_page.h"

#include <array>
#include <atomic>
#include <bit>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>

#include "platform/code_page_tables.h"

namespace norvik {
namespace {

constexpr unsigned kUtf8CodePage = 65001;

// The tables of a code page, made at first use and kept until the process ends.
const CodePageTables& Tables(unsigned number) {
  static std::mutex guard;
  static std::map<unsigned, std::unique_ptr<CodePageTables>> pages;
  const std::lock_guard<std::mutex> lock(guard);
  auto& page = pages[number];
  if (!page) {
    try {
      page = MakeCodePageTables(number);
    } catch (...) {
      pages.erase(number);
      throw;
    }
  }
  return *page;
}

// The ANSI code page; null stands for 65001, which has no tables.
std::atomic<const CodePageTables*>& AnsiTables() {
  static std::atomic<const CodePageTables*> tables(&Tables(936));
  return tables;
}

const CodePageTables* TablesFor(unsigned codePage) {
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
  constexpr std::array<std::uint32_t, 5> kMinimum{0, 0, 0x80, 0x800, 0x10000};
  if (first < 0xC2 || first > 0xF4 || text.size() - at < size) return {kReplacement, 1, false};
  std::uint32_t value = first & (0x7FU >> size);
  for (std::size_t offset = 1; offset < size; ++offset) {
    if ((byte(offset) & 0xC0) != 0x80) return {kReplacement, 1, false};
    value = value << 6 | (byte(offset) & 0x3FU);
  }
  if (value < kMinimum[size] || value > 0x10FFFF || (value >= 0xD800 && value < 0xE000))
    return {kReplacement, 1, false};
  return {value, size, true};
}

// The code of the character at `at` and its bytes.
struct AnsiCode {
  unsigned code;
  std::size_t size;
};

AnsiCode CodeAt(const CodePageTables& page, std::string_view text, std::size_t at) {
  const unsigned first = static_cast<unsigned char>(text[at]);
  if (page.bounds.Length(text, at) == 1) return {first, 1};
  return {first * 256 + static_cast<unsigned char>(text[at + 1]), 2};
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

// The code of a character; '?' where the page lacks it.
unsigned NarrowCode(const CodePageTables& page, Utf8Character character) {
  return character.valid && character.value < 0x10000 ? page.code[character.value] : '?';
}

// The same of the character of UTF-8 at `at`, which moves past it. A character never takes more bytes in a
// page than in UTF-8.
unsigned NextNarrowCode(const CodePageTables& page, std::string_view utf8, std::size_t& at) {
  const auto byte = [&](std::size_t offset) { return static_cast<unsigned char>(utf8[at + offset]); };
  // Most are of three bytes; E0 and ED, which don't go with every second byte, are decoded in full.
  if (at + 3 <= utf8.size() && byte(0) > 0xE0 && byte(0) < 0xF0 && byte(0) != 0xED &&
      (byte(1) & 0xC0) == 0x80 && (byte(2) & 0xC0) == 0x80) {
    const unsigned unit = (byte(0) & 0x0FU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU);
    at += 3;
    return page.code[unit];
  }
  const Utf8Character character = Utf8At(utf8, at);
  at += character.size;
  return NarrowCode(page, character);
}

void AppendNarrow(const CodePageTables& page, std::string_view utf8, std::string& out) {
  const std::size_t before = out.size();
  out.resize(before + utf8.size());
  char* to = out.data() + before;
  for (std::size_t at = 0; at < utf8.size();) {
    const std::size_t plain = AsciiRun(utf8.substr(at));
    std::memcpy(to, utf8.data() + at, plain);
    to += plain;
    at += plain;
    while (at < utf8.size() && static_cast<signed char>(utf8[at]) < 0) {
      const unsigned code = NextNarrowCode(page, utf8, at);
      if (code > 0xFF) *to++ = static_cast<char>(code >> 8);
      *to++ = static_cast<char>(code & 0xFF);
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
  const CodePageTables* page = TablesFor(0);
  return page ? page->number : kUtf8CodePage;
}

std::u16string Widen(std::string_view text, unsigned codePage) {
  const CodePageTables* page = TablesFor(codePage);
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
    out += page->unit[found.code];
    at += found.size;
  }
  return out;
}

std::string Narrow(std::u16string_view text, unsigned codePage) {
  const CodePageTables* page = TablesFor(codePage);
  std::string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Character character = Utf16At(text, at);
    if (page) {
      AppendCode(NarrowCode(*page, character), out);
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
  const CodePageTables* page = TablesFor(0);
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
  const CodePageTables* page = TablesFor(0);
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
      const Utf8Unit& utf8 = page->utf8[found.code];
      std::memcpy(to, utf8.bytes.data(), utf8.bytes.size());
      to += utf8.size;
      at += found.size;
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

const CharacterBounds* AnsiBounds() {
  const CodePageTables* page = TablesFor(0);
  return page ? &page->bounds : nullptr;
}

bool IsLeadByte(unsigned char byte) {
  const CodePageTables* page = TablesFor(0);
  return page && page->bounds.IsLead(byte);
}

std::size_t CharacterLength(std::string_view text, std::size_t at) {
  if (at >= text.size()) return 0;
  const CodePageTables* page = TablesFor(0);
  return page ? page->bounds.Length(text, at) : Utf8At(text, at).size;
}

std::size_t EndOfValidRun(std::string_view text, std::size_t from) {
  const CodePageTables* page = TablesFor(0);
  std::size_t at = from;
  while (at < text.size() && static_cast<signed char>(text[at]) < 0) {
    if (page) {
      const AnsiCode found = CodeAt(*page, text, at);
      if (page->unit[found.code] == kReplacement) return at;
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
