#pragma once

#include <array>
#include <cstdint>

/// The ordinals that each library of the host must answer, in the order in which they are bound: 114 in all.
namespace norvik::ordinals {

inline constexpr std::array<std::uint32_t, 69> kPublicInformation = {
    1,   2,   3,   4,   5,   6,   7,   8,   9,   10,                      // 1 starts it, 3 takes buffers back
    20,  21,  22,  23,  24,  25,  26,  27,                                // fields
    38,  39,  40,  41,  42,  43,  44,  45,  46,  47,                      // lists
    58,  59,  60,  61,  62,  63,  64,  65,  66,  67,  68,  69,            // Ini documents
    80,  81,  82,  83,  84,  85,  86,  87,  88,  89,  90,  91,  92,  93,  // Iniplus documents
    104, 105, 106, 107, 108, 109, 110, 111, 123, 122, 124, 125, 126, 127,  // 123 and 122: handles
    184};
inline constexpr std::array<std::uint32_t, 8> kTranslate = {1, 2, 3, 4, 5, 6, 8, 7};
inline constexpr std::array<std::uint32_t, 8> kError = {1, 2, 3, 4, 5, 6, 7, 8};
inline constexpr std::array<std::uint32_t, 12> kSafeCom = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
inline constexpr std::array<std::uint32_t, 10> kExcel = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
inline constexpr std::array<std::uint32_t, 7> kPrint = {1, 2, 3, 4, 5, 6, 7};

}  // namespace norvik::ordinals
