// XML text to events, over expat: the one place that judges whether a text is XML.
//
// For the documents' reader (data/xml_reader.h), which turns the events into narrow text. Nothing outside of
// the text is ever opened, and expansion is bounded.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/export.h"

namespace norvik {

/// The entities that one document may declare; more are refused.
inline constexpr unsigned kMaxEntities = 256;

/// The attributes of a start tag in the order of the text, without namespace declarations. Names and values
/// are UTF-8 and valid during the event.
class NORVIK_EXPORT XmlAttributes {
 public:
  /// `pairs` is name and value by turns, ended by a null; valid during the event.
  explicit XmlAttributes(const char** pairs);
  /// Number of attributes.
  std::size_t Size() const { return size_; }
  /// The name as it stands in the text, with its prefix, of an attribute counted from 0; made in `space`
  /// where it has one.
  std::string_view QualifiedName(std::size_t index, std::string& space) const;
  /// The value of an attribute, counted from 0.
  std::string_view Value(std::size_t index) const { return pairs_[2 * index + 1]; }

 private:
  const char** pairs_;
  std::size_t size_ = 0;
};

/// Takes the events. Texts are UTF-8 and valid during the event. False from an event, or an exception, ends
/// the reading.
class NORVIK_EXPORT XmlEvents {
 public:
  virtual ~XmlEvents();
  /// An element begins; `localName` is its tag without the prefix.
  virtual bool StartElement(std::string_view localName, const XmlAttributes& attributes) = 0;
  /// An element has ended.
  virtual bool EndElement(std::string_view localName) = 0;
  /// A piece of character data; entities are resolved, line ends are LF.
  virtual bool Characters(std::string_view piece) = 0;
};

/// What became of a reading.
struct XmlResult {
  /// True if the text was read to its end.
  bool read = false;
  /// True if an event returned false; not for a text that is not well-formed.
  bool refused = false;
  /// The line where the reading ended, from 1.
  unsigned long line = 0;
  /// The column in that line, from 1, in characters.
  unsigned long column = 0;
  /// Why the reading ended; empty where the text was read.
  std::string reason;
};

/// Reads `text`, bytes in the ANSI code page. Rethrows what an event threw.
///
/// The text is decoded in pieces, so that the whole is never held twice; the encoding that its prolog names
/// does not count, even where the label is none that XML allows. The reading is strict: what is not
/// well-formed XML 1.0 with namespaces is refused, forbidden characters, NUL and unbound prefixes among them.
/// Declarations inside a DOCTYPE are read; an external subset is not, and a reference to an external or
/// undeclared entity is refused; after an external subset or a parameter entity whatever looks like such a
/// reference is refused, in a comment too. Expansion is bounded by expat's own guard against amplification
/// and by kMaxEntities, which also bounds how deep entities nest.
NORVIK_EXPORT XmlResult ReadXml(std::string_view text, XmlEvents& events);

/// True if `name` (UTF-8) is a name with at most one prefix that the reader takes as a tag.
NORVIK_EXPORT bool IsXmlName(std::string_view name);

}  // namespace norvik
