// The members of documents that read or write XML text, each with its class's own key.
#include <algorithm>
#include <utility>

#include "data/exception.h"
#include "data/xml_reader.h"
#include "data/xml_writer.h"

namespace corvane {
namespace {

template <class Handler, class Document>
void Read(std::string_view xml, Document& document, const char* key) {
  Handler handler(&document);
  std::string error;
  if (!parseXml(xml, &handler, error)) throw TException(key);
}

void CheckRoot(const Element& document, std::string_view tag, const char* key) {
  if (document.name() != tag) throw TException(key);
}

// The prolog's label. Where the scan brings more than the label along, up to a quote or past a tab or a line
// end that could not be written again, the plain label in it.
std::string LabelOf(std::string_view xml) {
  std::string label = xmlEncoding(xml);
  if (XmlWriter::takesLabel(label)) return label;
  label.erase(0, label.find_first_not_of("\"' \t\r\n"));
  const auto end = std::find_if(label.begin(), label.end(), [](char byte) {
    return byte == '"' || byte == '\'' || (byte >= 0 && byte <= ' ');
  });
  return {label.begin(), end};
}

template <class Document>
std::string Written(const Document& document, const char* key) {
  std::string text;
  if (!writeXml(document, text)) throw TException(key);
  return text;
}

}  // namespace

Field::Field(std::string_view xml) {
  Read<FieldSAXHandler>(xml, *this, "ET10044");
  setEncoding(LabelOf(xml));
}

std::string Field::toString() const {
  return Written(*this, "ET10045");
}

Row::Row(std::string_view xml) : Row() {
  Read<RowSAXHandler>(xml, *this, "ET10057");
  setEncoding(LabelOf(xml));
}

std::string Row::toString() const {
  return Written(*this, "ET10058");
}

List::List(std::string_view xml) {
  fromString(xml);
}

void List::fromString(std::string_view xml) {
  Read<ListSAXHandler>(xml, *this, "ET10052");
  CheckRoot(*this, "list", "ET10100");
  setEncoding(LabelOf(xml));
}

std::string List::toString() const {
  return Written(*this, "ET10053");
}

CorvaneStream::CorvaneStream(std::string_view xml) {
  fromString(xml);
}

void CorvaneStream::fromString(std::string_view xml) {
  Read<CorvaneStreamSAXHandler>(xml, *this, "ET10016");
  setEncoding(LabelOf(xml));
}

std::string CorvaneStream::toString() const {
  return Written(*this, "ET10017");
}

Ini::Ini(std::string_view xml) {
  fromString(xml);
}

void Ini::fromString(std::string_view xml) {
  Read<IniSAXHandler>(xml, *this, "ET10046");
  CheckRoot(*this, "ini", "ET10047");
  setEncoding(LabelOf(xml));
}

std::string Ini::toString() const {
  return Written(*this, "ET10048");
}

Iniplus::Iniplus(std::string_view xml) {
  fromString(xml);
}

void Iniplus::fromString(std::string_view xml) {
  Read<IniplusSAXHandler>(xml, *this, "ET10049");
  CheckRoot(*this, "iniplus", "ET10050");
  setEncoding(LabelOf(xml));
}

std::string Iniplus::toString() const {
  return Written(*this, "ET10051");
}

}  // namespace corvane
