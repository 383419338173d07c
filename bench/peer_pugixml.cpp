#include <pugixml.hpp>
#include <stdexcept>

#include "bench/peers.h"
#include "platform/code_page.h"

namespace bench {
namespace {

class TreeModel : public Model {
 public:
  explicit TreeModel(const std::string& text) : utf8_(norvik::Utf8FromAnsi(text)) {
    if (!document_.load_buffer_inplace(utf8_.data(), utf8_.size(), pugi::parse_default, pugi::encoding_utf8))
      throw std::runtime_error("pugixml refuses the text");
  }
  Sum ReadAll() override {
    Sum sum;
    for (const pugi::xml_node row : document_.child("stream").child("list").children("row"))
      for (const char* column : kColumns) sum.Add(norvik::AnsiFromUtf8(row.child(column).child_value()));
    return sum;
  }

 private:
  std::string utf8_;
  pugi::xml_document document_;
};

struct StringWriter : pugi::xml_writer {
  void write(const void* data, std::size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }
  std::string text;
};

std::string Write(Model& rows) {
  pugi::xml_document document;
  pugi::xml_node list = document.append_child("stream").append_child("list");
  list.append_attribute("name") = "resultList";
  for (const PlainRow& row : dynamic_cast<PlainModel&>(rows).rows) {
    pugi::xml_node node = list.append_child("row");
    for (const auto& [name, value] : row) {
      pugi::xml_node field = node.append_child(name.c_str());
      if (!value.empty()) field.text() = norvik::Utf8FromAnsi(value).c_str();
    }
  }
  StringWriter writer;
  document.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
  return norvik::AnsiFromUtf8(writer.text);
}

}  // namespace

Peer PugiXmlPeer() {
  return {"pugixml", [](const std::string& text) { return std::make_unique<TreeModel>(text); }, ReadPlain,
          Write};
}

}  // namespace bench
