#include <tinyxml2.h>

#include <stdexcept>

#include "bench/peers.h"
#include "platform/code_page.h"

namespace bench {
namespace {

class TreeModel : public Model {
 public:
  explicit TreeModel(const std::string& text) {
    const std::string utf8 = norvik::Utf8FromAnsi(text);
    if (document_.Parse(utf8.data(), utf8.size()) != tinyxml2::XML_SUCCESS)
      throw std::runtime_error("tinyxml2 refuses the text");
  }
  Sum ReadAll() override {
    Sum sum;
    const auto* list = document_.FirstChildElement("stream")->FirstChildElement("list");
    for (const auto* row = list->FirstChildElement(); row; row = row->NextSiblingElement())
      for (const char* column : kColumns) {
        const char* value = row->FirstChildElement(column)->GetText();
        sum.Add(norvik::AnsiFromUtf8(value ? value : ""));
      }
    return sum;
  }

 private:
  tinyxml2::XMLDocument document_;
};

std::string Write(Model& rows) {
  tinyxml2::XMLPrinter printer(nullptr, true);
  printer.OpenElement("stream");
  printer.OpenElement("list");
  printer.PushAttribute("name", "resultList");
  for (const PlainRow& row : dynamic_cast<PlainModel&>(rows).rows) {
    printer.OpenElement("row");
    for (const auto& [name, value] : row) {
      printer.OpenElement(name.c_str());
      if (!value.empty()) printer.PushText(norvik::Utf8FromAnsi(value).c_str());
      printer.CloseElement();
    }
    printer.CloseElement();
  }
  printer.CloseElement();
  printer.CloseElement();
  return norvik::AnsiFromUtf8(printer.CStr());
}

}  // namespace

Peer TinyXml2Peer() {
  return {"tinyxml2", [](const std::string& text) { return std::make_unique<TreeModel>(text); }, ReadPlain,
          Write};
}

}  // namespace bench
