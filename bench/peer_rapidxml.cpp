#include <iterator>
#include <rapidxml/rapidxml.hpp>

#include "bench/peers.h"
#include "platform/code_page.h"

// The printer calls these before it defines them, so a compiler of today needs their declarations first.
namespace rapidxml::internal {
template <class OutIt, class Ch>
OutIt print_children(OutIt out, const xml_node<Ch>* node, int flags, int indent);
template <class OutIt, class Ch>
OutIt print_attributes(OutIt out, const xml_node<Ch>* node, int flags);
template <class OutIt, class Ch>
OutIt print_data_node(OutIt out, const xml_node<Ch>* node, int flags, int indent);
template <class OutIt, class Ch>
OutIt print_cdata_node(OutIt out, const xml_node<Ch>* node, int flags, int indent);
template <class OutIt, class Ch>
OutIt print_element_node(OutIt out, const xml_node<Ch>* node, int flags, int indent);
template <class OutIt, class Ch>
OutIt print_declaration_node(OutIt out, const xml_node<Ch>* node, int flags, int indent);
template <class OutIt, class Ch>
OutIt print_comment_node(OutIt out, const xml_node<Ch>* node, int flags, int indent);
template <class OutIt, class Ch>
OutIt print_doctype_node(OutIt out, const xml_node<Ch>* node, int flags, int indent);
template <class OutIt, class Ch>
OutIt print_pi_node(OutIt out, const xml_node<Ch>* node, int flags, int indent);
}  // namespace rapidxml::internal

#include <rapidxml/rapidxml_print.hpp>

namespace bench {
namespace {

class TreeModel : public Model {
 public:
  explicit TreeModel(const std::string& text) : utf8_(norvik::Utf8FromAnsi(text)) {
    document_.parse<rapidxml::parse_validate_closing_tags>(utf8_.data());
  }
  Sum ReadAll() override {
    Sum sum;
    for (auto* row = document_.first_node("stream")->first_node("list")->first_node(); row;
         row = row->next_sibling())
      for (const char* column : kColumns) {
        const auto* node = row->first_node(column);
        sum.Add(norvik::AnsiFromUtf8({node->value(), node->value_size()}));
      }
    return sum;
  }

 private:
  std::string utf8_;
  rapidxml::xml_document<> document_;
};

std::string Write(Model& rows) {
  rapidxml::xml_document<> document;
  const auto element = [&](auto* parent, const char* name) {
    auto* node = document.allocate_node(rapidxml::node_element, name);
    parent->append_node(node);
    return node;
  };
  auto* list = element(element(&document, "stream"), "list");
  list->append_attribute(document.allocate_attribute("name", "resultList"));
  for (const PlainRow& row : dynamic_cast<PlainModel&>(rows).rows) {
    auto* node = element(list, "row");
    for (const auto& [name, value] : row) {
      auto* field = element(node, name.c_str());
      if (value.empty()) continue;
      const std::string utf8 = norvik::Utf8FromAnsi(value);
      field->value(document.allocate_string(utf8.c_str(), utf8.size() + 1), utf8.size());
    }
  }
  std::string text;
  rapidxml::print(std::back_inserter(text), document, rapidxml::print_no_indenting);
  return norvik::AnsiFromUtf8(text);
}

}  // namespace

Peer RapidXmlPeer() {
  return {"rapidxml", [](const std::string& text) { return std::make_unique<TreeModel>(text); }, ReadPlain,
          Write};
}

}  // namespace bench
