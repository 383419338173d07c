// Reading an XML text: parseXml passes it to a content handler and says what became of it.
//
// For the documents and for callers that check a text or read it in a way of their own. The keys and reasons
// of a failure here are the reader's; a class of documents throws its own key and takes the place along as
// the reason.
#pragma once

#include <string>
#include <string_view>

#include "data/export.h"

namespace corvane {

class SAXContentHandlerImpl;

/// What became of a reading: a key for the program, and for a person the place in the text and the reason.
struct ParseResult {
  /// "" if the text was read; "ET10078" for an empty text, "ET10079" for one that is refused, else the key
  /// that an event threw.
  std::string key;
  /// The line where the reading ended, from 1; 0 where no place is known.
  unsigned long line = 0;
  /// The column in that line, from 1, in characters; 0 where no place is known.
  unsigned long column = 0;
  /// Why the text was refused; empty if it was read.
  std::string reason;

  /// Place and reason in one line, such as "line 3, column 41: mismatched tag"; empty if the text was read.
  CORVANE_EXPORT std::string describe() const;

  /// True if the text was read.
  explicit operator bool() const { return key.empty(); }
};

/// Reads `text`, bytes in the ANSI code page, into the handler. What the handler stored before a failure
/// stays. An exception of an event that is no TException propagates.
CORVANE_EXPORT ParseResult parseXml(std::string_view text, SAXContentHandlerImpl& handler);

/// The same with a handler that may be null ("ET10077"); on failure the result is false, and `error` is the
/// key.
CORVANE_EXPORT bool parseXml(std::string_view text, SAXContentHandlerImpl* handler, std::string& error);

/// Returns the value of `encoding` in the prolog of `text`, or "". A scan of the bytes: single quotes are not
/// removed.
CORVANE_EXPORT std::string xmlEncoding(std::string_view text);

}  // namespace corvane
