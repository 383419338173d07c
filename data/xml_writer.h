// Writing documents as XML text.
//
// The text is the prolog and the root element, with no white space between elements and no line end behind.
// An element without content is `<NAME/>`; attributes stand in byte order of their names, empty ones are left
// out. In character data &, < and > are escaped, in attribute values &, < and "; a CR is written &#13; in
// both, a tab and an LF in attribute values as &#9; and &#10;, so that every value is read back byte for
// byte. Other characters stand as themselves, in the ANSI code page whatever the prolog says; a byte that the
// code page lacks comes out as '?'. What a reader would refuse is not written: a tag or attribute name that
// is no XML name or bears a prefix that nothing around it declares, a declaration that binds a name which XML
// reserves, two attributes of one element that differ in nothing but prefixes of the same namespace, an
// encoding's label with a quote, a control character that XML forbids, a character that is none.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/corvane_stream.h"
#include "data/field.h"
#include "data/ini.h"
#include "data/iniplus.h"
#include "data/list.h"
#include "data/row.h"

namespace corvane {

// The writer step of each class of documents: true and the document's text, or false where there is none;
// `text` is unchanged then.
bool writeXml(const Field& field, std::string& text);
bool writeXml(const Row& row, std::string& text);
bool writeXml(const List& list, std::string& text);
bool writeXml(const CorvaneStream& stream, std::string& text);
bool writeXml(const Ini& ini, std::string& text);
bool writeXml(const Iniplus& iniplus, std::string& text);

// Appends elements to one text. The operations throw TException with the inner key of what is refused:
// ET10062 a tag, ET10072 an attribute's name, ET10073 its value, ET10074 an attribute that the element has
// already, ET10071 a value in character data or the encoding's label.
class XmlWriter {
 public:
  // Begins with the prolog.
  explicit XmlWriter(std::string_view encoding);
  // False for a label that would end the prolog or can't stand in it.
  static bool takesLabel(std::string_view label);

  void field(const Field& field);
  void row(const Row& row) { RowUnder(row.name(), row); }
  void list(const List& list) { ListUnder(list.name(), list); }
  void stream(const CorvaneStream& stream);
  // A document of sections under the tag `root`.
  void ini(const Ini& ini);
  void iniplus(const Iniplus& iniplus);
  std::string take() { return std::move(out_); }

 private:
  // The tags of one column, ready to be copied.
  struct ColumnTags {
    std::uint32_t slot;
    std::string_view name;
    std::string open;
    std::string close;
    std::string empty;
  };

  // A prefix and the namespace that it is bound to, as the text declares it.
  struct Binding {
    std::string prefix;
    std::string space;
  };

  void RowUnder(std::string_view tag, const Row& row);
  void ListUnder(std::string_view tag, const List& list);
  template <class Content>
  void Write(const Element& element, std::string_view tag, bool hasContent, Content content);
  void Attributes(const AttributeMap& attributes);
  void Bind(std::string_view prefix, std::string_view space);
  static void CheckName(std::string_view name, const char* key);
  void CheckPrefix(std::string_view name, const char* key) const { (void)SpaceOf(name, key); }
  void CheckPrefixes(const AttributeMap& attributes) const;
  std::string_view SpaceOf(std::string_view name, const char* key) const;
  void Leaf(const ColumnTags& tags, std::string_view value);
  void Rows(const List& list);
  void Prepare(const Shared<RowShape>& shape);
  void Value(std::string_view value, bool inAttribute, const char* key);
  void Reserve(std::size_t more);

  std::string out_;
  std::vector<Binding> bindings_;  // made by the open elements
  Shared<RowShape> shape_;         // the shape that columns_ is made for
  std::vector<ColumnTags> columns_;
  bool prefixed_ = false;     // one of its columns has a prefix
  std::size_t tagBytes_ = 0;  // of one row of that shape
};

}  // namespace corvane
