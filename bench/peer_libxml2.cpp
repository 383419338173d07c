#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlwriter.h>

#include <stdexcept>

#include "bench/peers.h"
#include "platform/code_page.h"

namespace bench {
namespace {

const char* Bytes(const xmlChar* text) {
  return reinterpret_cast<const char*>(text);
}
const xmlChar* Chars(const std::string& text) {
  return reinterpret_cast<const xmlChar*>(text.c_str());
}

xmlNode* Child(xmlNode* parent, const char* name) {
  for (xmlNode* node = parent->children; node; node = node->next)
    if (xmlStrEqual(node->name, reinterpret_cast<const xmlChar*>(name))) return node;
  return nullptr;
}

class TreeModel : public Model {
 public:
  explicit TreeModel(const std::string& text) {
    const std::string utf8 = norvik::Utf8FromAnsi(text);
    document_ = xmlReadMemory(utf8.data(), static_cast<int>(utf8.size()), nullptr, "UTF-8",
                              XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_COMPACT);
    if (!document_) throw std::runtime_error("libxml2 refuses the text");
  }
  ~TreeModel() override { xmlFreeDoc(document_); }
  Sum ReadAll() override {
    Sum sum;
    xmlNode* list = Child(xmlDocGetRootElement(document_), "list");
    for (xmlNode* row = list->children; row; row = row->next)
      for (const char* column : kColumns) {
        xmlChar* value = xmlNodeGetContent(Child(row, column));
        sum.Add(norvik::AnsiFromUtf8(Bytes(value)));
        xmlFree(value);
      }
    return sum;
  }

 private:
  xmlDoc* document_;
};

void WriteRow(xmlTextWriter* writer, const PlainRow& row) {
  xmlTextWriterStartElement(writer, Chars("row"));
  for (const auto& [name, value] : row) {
    xmlTextWriterStartElement(writer, Chars(name));
    if (!value.empty()) xmlTextWriterWriteString(writer, Chars(norvik::Utf8FromAnsi(value)));
    xmlTextWriterEndElement(writer);
  }
  xmlTextWriterEndElement(writer);
}

std::string Write(Model& rows) {
  xmlBuffer* buffer = xmlBufferCreate();
  xmlTextWriter* writer = xmlNewTextWriterMemory(buffer, 0);
  xmlTextWriterStartDocument(writer, nullptr, "UTF-8", nullptr);
  xmlTextWriterStartElement(writer, Chars("stream"));
  xmlTextWriterStartElement(writer, Chars("list"));
  xmlTextWriterWriteAttribute(writer, Chars("name"), Chars("resultList"));
  for (const PlainRow& row : dynamic_cast<PlainModel&>(rows).rows) WriteRow(writer, row);
  xmlTextWriterEndDocument(writer);
  xmlFreeTextWriter(writer);
  std::string text = norvik::AnsiFromUtf8(
      {Bytes(xmlBufferContent(buffer)), static_cast<std::size_t>(xmlBufferLength(buffer))});
  xmlBufferFree(buffer);
  return text;
}

}  // namespace

Peer LibXml2Peer() {
  return {"libxml2", [](const std::string& text) { return std::make_unique<TreeModel>(text); }, ReadPlain,
          Write};
}

}  // namespace bench
