// The ordinals of the host's libraries: which of them must be there, and which of them the proxies call.
//
// For the proxies of this folder and for hosts that check themselves. The shapes of the functions stand with
// their proxies.
#pragma once

#include <array>
#include <cstdint>

/// Six libraries, each of whose functions is bound in the order of its list: 114 in all.
namespace norvik::ordinals {

/// What the public information library must answer.
inline constexpr std::array<std::uint32_t, 69> kPublicInformation = {
    1,   2,   3,   4,   5,   6,   7,   8,   9,   10,                      // 1 starts it, 3 takes buffers back
    20,  21,  22,  23,  24,  25,  26,  27,                                // fields
    38,  39,  40,  41,  42,  43,  44,  45,  46,  47,                      // lists
    58,  59,  60,  61,  62,  63,  64,  65,  66,  67,  68,  69,            // Ini documents
    80,  81,  82,  83,  84,  85,  86,  87,  88,  89,  90,  91,  92,  93,  // Iniplus documents
    104, 105, 106, 107, 108, 109, 110, 111, 123, 122, 124, 125, 126, 127,  // 123 and 122: handles
    184};
/// What the translation library must answer.
inline constexpr std::array<std::uint32_t, 8> kTranslate = {1, 2, 3, 4, 5, 6, 8, 7};
/// What the error library must answer.
inline constexpr std::array<std::uint32_t, 8> kError = {1, 2, 3, 4, 5, 6, 7, 8};
/// What the secure communication library must answer.
inline constexpr std::array<std::uint32_t, 12> kSafeCom = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
/// What the spreadsheet library must answer.
inline constexpr std::array<std::uint32_t, 10> kExcel = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
/// What the print library must answer.
inline constexpr std::array<std::uint32_t, 7> kPrint = {1, 2, 3, 4, 5, 6, 7};

/// Starts a library; the same in all but secure communication and the spreadsheet.
inline constexpr std::uint32_t kStart = 1;
/// Takes back a buffer that the public information, the translation or the error library filled.
inline constexpr std::uint32_t kGiveBack = 3;

/// Public information: stores a field in a block.
inline constexpr std::uint32_t kSetField = 23;
/// Reads a field of a block.
inline constexpr std::uint32_t kGetField = 24;
/// Public information: reads a list.
inline constexpr std::uint32_t kGetList = 40;
/// Public information: stores an Ini document.
inline constexpr std::uint32_t kStoreIni = 58;
/// Removes the document.
inline constexpr std::uint32_t kRemoveIni = 59;
/// Reads the document.
inline constexpr std::uint32_t kGetIni = 60;
/// Reads one value of it.
inline constexpr std::uint32_t kGetIniValue = 68;
/// Public information: stores an Iniplus document.
inline constexpr std::uint32_t kStoreIniplus = 80;
/// Removes the document.
inline constexpr std::uint32_t kRemoveIniplus = 81;
/// Reads the document.
inline constexpr std::uint32_t kGetIniplus = 82;
/// Reads one row of a section.
inline constexpr std::uint32_t kGetIniplusRow = 87;
/// Reads all rows of a section.
inline constexpr std::uint32_t kGetIniplusList = 90;
/// Public information: stores a handle under a key.
inline constexpr std::uint32_t kSetHandle = 122;
/// Reads the handle.
inline constexpr std::uint32_t kGetHandle = 123;

/// Translation: a text by section and key.
inline constexpr std::uint32_t kLookUp = 4;
/// Translation: converts a text for the other side.
inline constexpr std::uint32_t kConvert = 6;

/// Errors: the message for a reason code.
inline constexpr std::uint32_t kReasonText = 4;
/// Errors: the message for keys.
inline constexpr std::uint32_t kErrorText = 5;

/// Secure communication: takes an answer's buffer back.
inline constexpr std::uint32_t kGiveAnswerBack = 4;
/// Secure communication: an exchange with the bank.
inline constexpr std::uint32_t kSend = 5;
/// Secure communication: the bank's time.
inline constexpr std::uint32_t kServerTime = 8;

/// Spreadsheet: writes a workbook.
inline constexpr std::uint32_t kExportWorkbook = 2;
/// Spreadsheet: writes a text file.
inline constexpr std::uint32_t kExportText = 5;

/// Print: prints records.
inline constexpr std::uint32_t kPrintList = 3;
/// Print: the settings of a template.
inline constexpr std::uint32_t kPrintSetup = 5;

}  // namespace norvik::ordinals
