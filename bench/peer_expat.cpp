#include <expat.h>

#include <stdexcept>

#include "bench/peers.h"
#include "platform/code_page.h"

namespace bench {
namespace {

struct Handler {
  PlainRows rows;
  PlainRow row;
  std::string chars;
};

void Start(void* data, const char* name, const char**) {
  auto& handler = *static_cast<Handler*>(data);
  handler.chars.clear();
  if (std::string("row") == name) handler.row.clear();
}

void End(void* data, const char* name) {
  auto& handler = *static_cast<Handler*>(data);
  if (std::string("row") == name)
    handler.rows.push_back(std::move(handler.row));
  else
    handler.row[name] = norvik::AnsiFromUtf8(handler.chars);
  handler.chars.clear();
}

void Text(void* data, const char* text, int size) {
  static_cast<Handler*>(data)->chars.append(text, static_cast<std::size_t>(size));
}

}  // namespace

Sum PlainModel::ReadAll() {
  Sum sum;
  for (PlainRow& row : rows)
    for (const char* column : kColumns) sum.Add(row[column]);
  return sum;
}

std::unique_ptr<Model> ReadPlain(const std::string& text) {
  const std::string utf8 = norvik::Utf8FromAnsi(text);
  Handler handler;
  XML_Parser parser = XML_ParserCreate("UTF-8");
  XML_SetUserData(parser, &handler);
  XML_SetElementHandler(parser, Start, End);
  XML_SetCharacterDataHandler(parser, Text);
  const bool read = XML_Parse(parser, utf8.data(), static_cast<int>(utf8.size()), 1) == XML_STATUS_OK;
  XML_ParserFree(parser);
  if (!read) throw std::runtime_error("expat refuses the text");
  auto model = std::make_unique<PlainModel>();
  model->rows = std::move(handler.rows);
  return model;
}

Peer ExpatPeer() {
  return {"expat into std::map", ReadPlain, nullptr, nullptr};
}

}  // namespace bench
