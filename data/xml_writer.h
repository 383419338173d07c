// Writing documents as XML text: one document as a text of its own, or several elements into one.
//
// For the documents themselves and for callers that put several documents into one text. It does not change
// what it writes; what no reader would take it refuses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/corvane_stream.h"
#include "data/export.h"
#include "data/field.h"
#include "data/ini.h"
#include "data/iniplus.h"
#include "data/list.h"
#include "data/row.h"

namespace corvane {

/// Writes a document as a text of its own: true and its text in `text`, or false where it has none; `text` is
/// unchanged then.
CORVANE_EXPORT bool writeXml(const Field& field, std::string& text);
/// The same of another class.
CORVANE_EXPORT bool writeXml(const Row& row, std::string& text);
/// The same of another class.
CORVANE_EXPORT bool writeXml(const List& list, std::string& text);
/// The same of another class.
CORVANE_EXPORT bool writeXml(const CorvaneStream& stream, std::string& text);
/// The same of another class.
CORVANE_EXPORT bool writeXml(const Ini& ini, std::string& text);
/// The same of another class.
CORVANE_EXPORT bool writeXml(const Iniplus& iniplus, std::string& text);

/// Appends elements to one text: the prolog and the root element, with no white space between elements and no
/// line end after it. An element without content is `<NAME/>`; attributes stand in byte order of their names,
/// empty ones are left out.
///
/// In character data &, `<` and > are escaped, in attribute values &, `<` and "; a CR is written &#13; in
/// both, a tab and an LF in attribute values as &#9; and &#10;, so that every value is read back byte for
/// byte. Other characters stand as themselves, in the ANSI code page whatever the prolog says; a byte that
/// the code page lacks comes out as '?'.
///
/// What a reader would refuse is not written: a tag or attribute name that is no XML name or bears a prefix
/// that nothing around it declares, a declaration that binds a name which XML reserves, two attributes of one
/// element that differ in nothing but prefixes of the same namespace, an encoding's label with a quote, a
/// control character that XML forbids, a character that is none. The operations throw TException with the
/// inner key of what is refused: ET10062 a tag, ET10072 an attribute's name, ET10073 its value, ET10074 an
/// attribute that the element has already, ET10071 a value in character data or the encoding's label.
class CORVANE_EXPORT XmlWriter {
 public:
  /// Begins with the prolog.
  explicit XmlWriter(std::string_view encoding);
  ~XmlWriter();
  /// The text is not copied before it is taken.
  XmlWriter(const XmlWriter&) = delete;
  /// A writer is not assigned to.
  XmlWriter& operator=(const XmlWriter&) = delete;

  /// False for a label that would end the prolog or can't stand in it.
  static bool takesLabel(std::string_view label);

  /// Appends an element with a value, without attributes.
  void field(const Field& field);
  /// Appends an element of columns.
  void row(const Row& row) { rowUnder(row.name(), row); }
  /// Appends an element of rows.
  void list(const List& list) { listUnder(list.name(), list); }
  /// Appends an element of fields, rows and lists.
  void stream(const CorvaneStream& stream);
  /// Appends the element "ini" of sections, whatever tag the document bears.
  void ini(const Ini& ini);
  /// Appends the element "iniplus" of sections, whatever tag the document bears.
  void iniplus(const Iniplus& iniplus);
  /// Takes the text, after which the writer is done.
  std::string take() { return std::move(out_); }

 private:
  /// The tags of one column, ready to be copied.
  struct ColumnTags {
    std::uint32_t slot;
    std::string_view name;
    std::string open;
    std::string close;
    std::string empty;
  };

  /// A prefix and the namespace that it is bound to, as the text declares it.
  struct Binding {
    std::string prefix;
    std::string space;
  };

  void rowUnder(std::string_view tag, const Row& row);
  void listUnder(std::string_view tag, const List& list);
  /// An element with its attributes; `content` appends what is in it.
  template <class Content>
  void appendElement(const Element& element, std::string_view tag, bool hasContent, Content content);
  void appendAttributes(const AttributeMap& attributes);
  void appendLeaf(const ColumnTags& tags, std::string_view value);
  void appendRows(const List& list);
  /// A value with its escapes; fails with `key` for a forbidden character.
  void appendValue(std::string_view value, bool inAttribute, const char* key);
  /// Makes the tags of the columns of a shape.
  void prepare(const detail::Shared<detail::RowShape>& shape);
  /// Binds a prefix for the open element.
  void bind(std::string_view prefix, std::string_view space);
  static void checkName(std::string_view name, const char* key);
  void checkPrefix(std::string_view name, const char* key) const { (void)spaceOf(name, key); }
  void checkPrefixes(const AttributeMap& attributes) const;
  /// The namespace of a name's prefix, empty without one; fails with `key` for a prefix that is not bound.
  std::string_view spaceOf(std::string_view name, const char* key) const;
  void reserve(std::size_t more);

  std::string out_;
  std::vector<Binding> bindings_;           // made by the open elements
  detail::Shared<detail::RowShape> shape_;  // the shape that columns_ is made for
  std::vector<ColumnTags> columns_;
  bool prefixed_ = false;     // one of its columns has a prefix
  std::size_t tagBytes_ = 0;  // of one row of that shape
};

}  // namespace corvane
