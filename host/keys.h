#pragma once

#include <array>

/// The keys of failures that a host which breaks the contract causes. The keys of a library that can't be
/// bound stand with its proxy.
namespace norvik::key {

inline constexpr const char* kNegativeLength = "CF30001";  // an answer with a length below 0
inline constexpr const char* kAbsurdLength = "CF30002";    // an answer longer than kLongestAnswer
inline constexpr const char* kMissingBuffer = "CF30003";   // success and a length above 0, but no buffer
inline constexpr const char* kNoReason = "CF30004";        // a refusal without a text
inline constexpr const char* kNulInText = "CF30005";       // a text that would have been cut at a NUL
inline constexpr const char* kAbsurdTime = "CF30006";      // a bank time before 1970 or after the year 9999
inline constexpr const char* kNotInitialised = "CF30007";  // a call before InitModule has succeeded

inline constexpr std::array kBrokenHost = {kNegativeLength, kAbsurdLength, kMissingBuffer, kNoReason,
                                           kNulInText,      kAbsurdTime,   kNotInitialised};

}  // namespace norvik::key
