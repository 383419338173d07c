// The tags of the classes of documents, each once: as a text and as the label that documents share.
//
// For the classes, the handlers and the writer. A label is made at its first use and lives until the process
// ends.
#pragma once

#include "data/detail/shared.h"

namespace corvane::detail {

inline constexpr const char* kRowTag = "row";
inline constexpr const char* kPropertyTag = "property";
inline constexpr const char* kListTag = "list";
inline constexpr const char* kStreamTag = "stream";
inline constexpr const char* kSectionTag = "section";
inline constexpr const char* kIniTag = "ini";
inline constexpr const char* kIniplusTag = "iniplus";

/// The label of a tag, one for each `tag` above.
template <const char* const& tag>
const Label& tagLabel() {
  static const PermanentLabel kLabel(tag);
  return kLabel;
}

}  // namespace corvane::detail
