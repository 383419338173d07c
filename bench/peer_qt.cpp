#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <stdexcept>

#include "bench/peers.h"
#include "platform/code_page.h"

namespace bench {
namespace {

QString Wide(const std::string& narrow) {
  return QString::fromStdU16String(norvik::Widen(narrow));
}

std::string Narrow(QStringView wide) {
  return norvik::Narrow({wide.utf16(), static_cast<std::size_t>(wide.size())});
}

std::unique_ptr<Model> Read(const std::string& text) {
  auto model = std::make_unique<PlainModel>();
  QXmlStreamReader reader(Wide(text));
  PlainRow row;
  QString chars;
  while (!reader.atEnd()) {
    const auto token = reader.readNext();
    if (token == QXmlStreamReader::Characters) {
      chars += reader.text();
    } else if (token == QXmlStreamReader::StartElement) {
      chars.resize(0);
      if (reader.name() == u"row") row.clear();
    } else if (token == QXmlStreamReader::EndElement) {
      if (reader.name() == u"row")
        model->rows.push_back(std::move(row));
      else
        row[Narrow(reader.name())] = Narrow(chars);
      chars.resize(0);
    }
  }
  if (reader.hasError()) throw std::runtime_error("Qt refuses the text");
  return model;
}

std::string Write(Model& rows) {
  QString text;
  QXmlStreamWriter writer(&text);
  writer.writeStartDocument();
  writer.writeStartElement("stream");
  writer.writeStartElement("list");
  writer.writeAttribute("name", "resultList");
  for (const PlainRow& row : dynamic_cast<PlainModel&>(rows).rows) {
    writer.writeStartElement("row");
    for (const auto& [name, value] : row) {
      writer.writeStartElement(Wide(name));
      if (!value.empty()) writer.writeCharacters(Wide(value));
      writer.writeEndElement();
    }
    writer.writeEndElement();
  }
  writer.writeEndDocument();
  return Narrow(text);
}

}  // namespace

Peer QtPeer() {
  return {"Qt", Read, ReadPlain, Write};
}

}  // namespace bench
