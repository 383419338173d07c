// XML text to events, over expat.
//
// The text is narrow and is decoded here, in pieces, so that the whole is never held twice; the encoding that
// its prolog names does not count, even where the label is none that XML allows. The reading is strict: what
// is not well-formed XML 1.0 with namespaces is refused, forbidden characters, NUL and unbound prefixes among
// them. Declarations inside a DOCTYPE are read; an external subset is not, and a reference to an external or
// undeclared entity is refused, so nothing is ever opened; behind an external subset or a parameter entity
// whatever looks like such a reference is refused, in a comment too. Expansion is bounded by expat's own
// guard against amplification and by kMaxEntities, which also bounds how deep entities nest.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace norvik {

// More entities than these in one document are refused.
inline constexpr unsigned kMaxEntities = 256;

// The attributes of a start tag in the order of the text, without namespace declarations. Names and values
// are UTF-8 and valid during the event.
class XmlAttributes {
 public:
  explicit XmlAttributes(const char** pairs);
  std::size_t size() const { return size_; }
  // The name as it stands in the text, with its prefix; made in `space` where it has one.
  std::string_view QualifiedName(std::size_t index, std::string& space) const;
  std::string_view Value(std::size_t index) const { return pairs_[2 * index + 1]; }

 private:
  const char** pairs_;
  std::size_t size_ = 0;
};

// Takes the events. Texts are UTF-8 and valid during the event. False from an event, or an exception, ends
// the reading.
class XmlEvents {
 public:
  virtual ~XmlEvents() = default;
  // `localName` is the tag without its prefix.
  virtual bool StartElement(std::string_view localName, const XmlAttributes& attributes) = 0;
  virtual bool EndElement(std::string_view localName) = 0;
  // A piece of character data; entities are resolved, line ends are LF.
  virtual bool Characters(std::string_view piece) = 0;
};

// What became of a reading.
struct XmlResult {
  bool read = false;
  bool refused = false;      // an event returned false; not set for a text that is not well-formed
  unsigned long line = 0;    // from 1, where the reading ended
  unsigned long column = 0;  // from 1, in characters
  std::string reason;        // empty where the text was read
};

// Reads `text`, bytes in the ANSI code page. Rethrows what an event threw.
XmlResult ReadXml(std::string_view text, XmlEvents& events);

// True if `name` (UTF-8) is a name with at most one prefix that the reader takes as a tag.
bool IsXmlName(std::string_view name);

}  // namespace norvik
