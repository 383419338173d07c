// The keys of failures that the proxies throw, each named once.
//
// For the proxies and for whoever has to know a broken host from a refusal. What a refusal itself says are
// the host's own keys.
#pragma once

#include <array>

namespace norvik::key {

// A host that breaks the contract.

/// An answer with a length below 0.
inline constexpr const char* kNegativeLength = "CF30001";
/// An answer longer than kMaxAnswerBytes.
inline constexpr const char* kAbsurdLength = "CF30002";
/// Success and a length above 0, but no buffer.
inline constexpr const char* kMissingBuffer = "CF30003";
/// A refusal without a text.
inline constexpr const char* kNoReason = "CF30004";
/// A text that would have been cut at a NUL.
inline constexpr const char* kNulInText = "CF30005";
/// A bank time before 1970 or after the year 9999.
inline constexpr const char* kAbsurdTime = "CF30006";
/// A call before InitModule has succeeded.
inline constexpr const char* kNotInitialised = "CF30007";

/// All of them.
inline constexpr std::array kBrokenHost = {kNegativeLength, kAbsurdLength, kMissingBuffer, kNoReason,
                                           kNulInText,      kAbsurdTime,   kNotInitialised};

// A library that can't be bound.

/// The public information library lacks a function.
inline constexpr const char* kPublicInformationIncomplete = "CF15001";
/// There is no translation library.
inline constexpr const char* kNoTranslation = "CF19001";
/// The translation library lacks a function.
inline constexpr const char* kTranslationIncomplete = "CF19002";
/// There is no error library.
inline constexpr const char* kNoErrors = "CF23001";
/// The error library lacks a function.
inline constexpr const char* kErrorsIncomplete = "CF23002";
/// The error library doesn't start.
inline constexpr const char* kErrorsNotStarted = "CF23003";
/// The secure communication library lacks a function.
inline constexpr const char* kSafeComIncomplete = "ET16024";
/// The spreadsheet library lacks a function.
inline constexpr const char* kExcelIncomplete = "CF20023";
/// The print library lacks a function.
inline constexpr const char* kPrintIncomplete = "CF14010";

}  // namespace norvik::key
