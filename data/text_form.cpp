// The members of documents that read or write XML text, each with its class's own key. They are declared in
// the headers of the classes and defined here, so that no class of documents needs to know the reader or the
// writer.
#include <algorithm>
#include <utility>

#include "data/detail/keys.h"
#include "data/detail/tags.h"
#include "data/exception.h"
#include "data/xml_handlers.h"
#include "data/xml_reader.h"
#include "data/xml_writer.h"

namespace corvane {
namespace {

template <class Handler, class Document>
void read(std::string_view xml, Document& document, const char* key) {
  Handler handler(&document);
  const ParseResult result = parseXml(xml, handler);
  if (!result) throw TException(key, result.describe());
}

void checkRoot(const Element& document, std::string_view tag, const char* key) {
  if (document.name() != tag) throw TException(key, "the root element is no \"" + std::string(tag) + "\"");
}

// The prolog's label. Where the scan brings more than the label along, up to a quote or past a tab or a line
// end that could not be written again, the plain label in it.
std::string labelOf(std::string_view xml) {
  std::string label = xmlEncoding(xml);
  if (XmlWriter::takesLabel(label)) return label;
  label.erase(0, label.find_first_not_of("\"' \t\r\n"));
  const auto end = std::find_if(label.begin(), label.end(), [](char byte) {
    return byte == '"' || byte == '\'' || (byte >= 0 && byte <= ' ');
  });
  return {label.begin(), end};
}

template <class Document>
std::string written(const Document& document, const char* key) {
  std::string text;
  if (!writeXml(document, text)) throw TException(key);
  return text;
}

}  // namespace

Field::Field(std::string_view xml) {
  read<FieldSAXHandler>(xml, *this, detail::key::kFieldNotRead);
  setEncoding(labelOf(xml));
}

std::string Field::toString() const {
  return written(*this, detail::key::kFieldNotWritten);
}

Row::Row(std::string_view xml) : Row() {
  read<RowSAXHandler>(xml, *this, detail::key::kRowNotRead);
  setEncoding(labelOf(xml));
}

std::string Row::toString() const {
  return written(*this, detail::key::kRowNotWritten);
}

List::List(std::string_view xml) {
  fromString(xml);
}

void List::fromString(std::string_view xml) {
  read<ListSAXHandler>(xml, *this, detail::key::kListNotRead);
  checkRoot(*this, detail::kListTag, detail::key::kListOtherRoot);
  setEncoding(labelOf(xml));
}

std::string List::toString() const {
  return written(*this, detail::key::kListNotWritten);
}

CorvaneStream::CorvaneStream(std::string_view xml) {
  fromString(xml);
}

void CorvaneStream::fromString(std::string_view xml) {
  read<CorvaneStreamSAXHandler>(xml, *this, detail::key::kStreamNotRead);
  setEncoding(labelOf(xml));
}

std::string CorvaneStream::toString() const {
  return written(*this, detail::key::kStreamNotWritten);
}

Ini::Ini(std::string_view xml) {
  fromString(xml);
}

void Ini::fromString(std::string_view xml) {
  read<IniSAXHandler>(xml, *this, detail::key::kIniNotRead);
  checkRoot(*this, detail::kIniTag, detail::key::kIniOtherRoot);
  setEncoding(labelOf(xml));
}

std::string Ini::toString() const {
  return written(*this, detail::key::kIniNotWritten);
}

Iniplus::Iniplus(std::string_view xml) {
  fromString(xml);
}

void Iniplus::fromString(std::string_view xml) {
  read<IniplusSAXHandler>(xml, *this, detail::key::kIniplusNotRead);
  checkRoot(*this, detail::kIniplusTag, detail::key::kIniplusOtherRoot);
  setEncoding(labelOf(xml));
}

std::string Iniplus::toString() const {
  return written(*this, detail::key::kIniplusNotWritten);
}

}  // namespace corvane
