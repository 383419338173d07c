// The keys of the failures of documents, each named once.
//
// Callers see the texts as part of each operation's contract; the names are for this folder alone.
#pragma once

namespace corvane::detail::key {

// A class's text can't be read; its document can't be written.
inline constexpr const char* kFieldNotRead = "ET10044";
inline constexpr const char* kFieldNotWritten = "ET10045";
inline constexpr const char* kRowNotRead = "ET10057";
inline constexpr const char* kRowNotWritten = "ET10058";
inline constexpr const char* kListNotRead = "ET10052";
inline constexpr const char* kListNotWritten = "ET10053";
inline constexpr const char* kListOtherRoot = "ET10100";
inline constexpr const char* kStreamNotRead = "ET10016";
inline constexpr const char* kStreamNotWritten = "ET10017";
inline constexpr const char* kIniNotRead = "ET10046";
inline constexpr const char* kIniOtherRoot = "ET10047";
inline constexpr const char* kIniNotWritten = "ET10048";
inline constexpr const char* kIniplusNotRead = "ET10049";
inline constexpr const char* kIniplusOtherRoot = "ET10050";
inline constexpr const char* kIniplusNotWritten = "ET10051";

// What an operation on a document refuses.
inline constexpr const char* kNoSuchTopRow = "ET10040";
inline constexpr const char* kNamelessList = "ET10043";
inline constexpr const char* kEmptyColumnName = "ET10080";
inline constexpr const char* kOtherColumns = "ET10101";
inline constexpr const char* kOtherPropertyColumns = "ET10102";
inline constexpr const char* kNoSuchRow = "ET10104";
inline constexpr const char* kNoSuchRowToCopy = "ET10111";

// What the writer refuses in a part of a document; a class replaces it with its own key.
inline constexpr const char* kBadTag = "ET10062";
inline constexpr const char* kBadText = "ET10071";  // in character data or in the encoding's label
inline constexpr const char* kBadAttributeName = "ET10072";
inline constexpr const char* kBadAttributeValue = "ET10073";
inline constexpr const char* kAttributeTwice = "ET10074";

// What the reader refuses; a class replaces it with its own key.
inline constexpr const char* kNoHandler = "ET10077";
inline constexpr const char* kEmptyText = "ET10078";
inline constexpr const char* kRefusedText = "ET10079";

}  // namespace corvane::detail::key
