#include "platform/code_page_tables.h"

#include <unicode/ucnv.h>

#include <optional>
#include <stdexcept>
#include <string>

namespace norvik {
namespace {

// ICU's converter of a Windows code page; it stops at what the code page lacks.
class Converter {
 public:
  explicit Converter(unsigned codePage) {
    UErrorCode status = U_ZERO_ERROR;
    converter_.reset(ucnv_open(("windows-" + std::to_string(codePage)).c_str(), &status));
    if (U_FAILURE(status)) return;
    ucnv_setToUCallBack(converter_.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    ucnv_setFromUCallBack(converter_.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    UErrorCode single = U_ZERO_ERROR;  // what has no lead bytes by its nature says so by a failure
    ucnv_getStarters(converter_.get(), leads_.data(), &single);
    usable_ = U_SUCCESS(status);
  }

  // True if every character is one byte or two, and the same whatever came before it.
  bool IsOfBytesAndPairs() const {
    if (!usable_ || ucnv_getMaxCharSize(converter_.get()) > 2) return false;
    const UConverterType type = ucnv_getType(converter_.get());
    return type == UCNV_SBCS || type == UCNV_MBCS || type == UCNV_LATIN_1 || type == UCNV_US_ASCII;
  }

  bool IsLead(unsigned byte) const { return leads_[byte] != 0; }

  // The UTF-16 unit of a byte; U+FFFD where it has none.
  char16_t Unit(unsigned byte) { return ToUnit({static_cast<char>(byte)}, 1).value_or(kReplacement); }

  // The same of a lead byte and what follows it; nothing where that can't be a second byte.
  std::optional<char16_t> Pair(unsigned first, unsigned second) {
    return ToUnit({static_cast<char>(first), static_cast<char>(second)}, 2);
  }

  // The code that is written for a unit that several stand for; 0 where none is.
  unsigned Code(char16_t unit) {
    std::array<char, 4> out{};
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t size = ucnv_fromUChars(converter_.get(), out.data(),
                                              static_cast<std::int32_t>(out.size()), &unit, 1, &status);
    const auto byte = [&](std::size_t at) -> unsigned { return static_cast<unsigned char>(out[at]); };
    if (U_FAILURE(status) || size < 1 || size > 2) return 0;
    return size == 1 ? byte(0) : byte(0) * 256 + byte(1);
  }

 private:
  struct Close {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
  };

  std::optional<char16_t> ToUnit(std::array<char, 2> bytes, std::int32_t size) {
    std::array<char16_t, 4> out{};
    UErrorCode status = U_ZERO_ERROR;
    const auto room = static_cast<std::int32_t>(out.size());
    const std::int32_t units = ucnv_toUChars(converter_.get(), out.data(), room, bytes.data(), size, &status);
    if (U_SUCCESS(status) && units == 1) return out[0];
    if (U_SUCCESS(status) || status == U_INVALID_CHAR_FOUND) return kReplacement;
    return std::nullopt;
  }

  std::unique_ptr<UConverter, Close> converter_;
  std::array<UBool, 256> leads_{};
  bool usable_ = false;
};

Utf8Unit Utf8Of(char16_t unit) {
  std::array<char, 4> bytes{};
  const std::size_t size = PutUtf8(unit, bytes.data());
  return {{bytes[0], bytes[1], bytes[2]}, static_cast<std::uint8_t>(size)};
}

void Enter(CodePageTables& page, Converter& converter, unsigned code, char16_t unit) {
  if (unit == kReplacement) return;
  page.unit[code] = unit;
  page.utf8[code] = Utf8Of(unit);
  std::uint16_t& back = page.code[unit];
  const bool taken = back != '?';
  if (!taken || converter.Code(unit) == code) back = static_cast<std::uint16_t>(code);
}

// ASCII stands for itself; ICU exchanges three control characters in tables that come from IBM. False where
// the code page has other characters there.
bool EnterAscii(CodePageTables& page, Converter& converter) {
  for (unsigned byte = 0; byte < 0x80; ++byte) {
    const bool control = byte < ' ' || byte == 0x7F;
    const auto unit = static_cast<char16_t>(byte);
    if (!control && converter.Unit(byte) != unit) return false;
    page.unit[byte] = unit;
    page.utf8[byte] = Utf8Of(unit);
    page.code[unit] = static_cast<std::uint16_t>(byte);
  }
  return true;
}

// False where the code page writes accents as characters of their own: most of its letters would be lost.
bool EnterBytes(CodePageTables& page, Converter& converter) {
  for (unsigned byte = 0x80; byte < 0x100; ++byte) {
    if (converter.IsLead(byte)) {
      page.bounds.SetLead(static_cast<unsigned char>(byte));
      continue;
    }
    const char16_t unit = converter.Unit(byte);
    if (unit >= 0x0300 && unit < 0x0370) return false;
    Enter(page, converter, byte, unit);
  }
  return true;
}

void EnterPairs(CodePageTables& page, Converter& converter) {
  for (unsigned first = 0x80; first < 0x100; ++first) {
    if (!converter.IsLead(first)) continue;
    for (unsigned second = 0; second < 0x100; ++second) {
      const std::optional<char16_t> unit = converter.Pair(first, second);
      if (!unit) continue;
      page.bounds.SetSecond(static_cast<unsigned char>(second));
      Enter(page, converter, first * 256 + second, *unit);
    }
  }
}

}  // namespace

std::size_t PutUtf8(std::uint32_t character, char* out) {
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

CodePageTables::CodePageTables() {
  unit.fill(kReplacement);
  utf8.fill(Utf8Of(kReplacement));
  code.fill('?');
}

std::unique_ptr<CodePageTables> MakeCodePageTables(unsigned number) {
  Converter converter(number);
  auto page = std::make_unique<CodePageTables>();
  page->number = number;
  if (!converter.IsOfBytesAndPairs() || !EnterAscii(*page, converter) || !EnterBytes(*page, converter))
    throw std::invalid_argument("code page " + std::to_string(number) + " is not served");
  EnterPairs(*page, converter);
  return page;
}

}  // namespace norvik
