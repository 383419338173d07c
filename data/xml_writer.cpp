#include "data/xml_writer.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "data/detail/keys.h"
#include "data/detail/tags.h"
#include "data/exception.h"
#include "platform/code_page.h"
#include "platform/large_memory.h"
#include "platform/xml_events.h"

namespace corvane {
namespace {

enum class Kind : unsigned char { kPlain, kMarkup, kControl, kForeign };

// What a byte is in a text: copied as it is, escaped at least somewhere, forbidden, or part of a foreign
// character.
constexpr std::array<Kind, 256> kKinds = [] {
  std::array<Kind, 256> kinds{};
  for (unsigned byte = 0; byte < 0x20; ++byte) kinds[byte] = Kind::kControl;
  for (unsigned byte = 0x80; byte < 0x100; ++byte) kinds[byte] = Kind::kForeign;
  for (const char byte : {'&', '<', '>', '"', '\t', '\n', '\r'})
    kinds[static_cast<unsigned char>(byte)] = Kind::kMarkup;
  return kinds;
}();

std::string_view escaped(char byte, bool inAttribute) {
  switch (byte) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '\r':
      return "&#13;";
    case '>':
      return inAttribute ? ">" : "&gt;";
    case '"':
      return inAttribute ? "&quot;" : "\"";
    case '\t':
      return inAttribute ? "&#9;" : "\t";
    default:
      return inAttribute ? "&#10;" : "\n";
  }
}

constexpr std::string_view kDeclaration = "xmlns:";
// What "xml" alone is bound to, and what nothing may be bound to.
constexpr std::string_view kXmlSpace = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view kDeclarationSpace = "http://www.w3.org/2000/xmlns/";

bool isPrefixed(std::string_view name) {
  return name.find(':') != std::string_view::npos;
}

// U+FFFE and U+FFFF, which only UTF-8 can hold of all code pages.
bool holdsNoncharacter(std::string_view run) {
  if (norvik::AnsiBounds()) return false;
  const std::u16string wide = norvik::Widen(run);
  return wide.find(u'\xFFFE') != std::u16string::npos || wide.find(u'\xFFFF') != std::u16string::npos;
}

}  // namespace

XmlWriter::XmlWriter(std::string_view encoding) {
  if (!takesLabel(encoding)) throw TException(detail::key::kBadText);
  out_.append("<?xml version=\"1.0\" encoding=\"").append(encoding).append("\"?>");
}

XmlWriter::~XmlWriter() = default;

bool XmlWriter::takesLabel(std::string_view label) {
  const auto forbidden = [](char byte) { return byte == '"' || (byte >= 0 && byte < 0x20); };
  return std::none_of(label.begin(), label.end(), forbidden) && label.find("?>") == std::string_view::npos;
}

void XmlWriter::field(const Field& field) {
  checkName(field.name(), detail::key::kBadTag);
  checkPrefix(field.name(), detail::key::kBadTag);
  const std::string& name = field.name();
  appendLeaf({0, name, "<" + name + ">", "</" + name + ">", "<" + name + "/>"}, field.getValue());
}

void XmlWriter::rowUnder(std::string_view tag, const Row& row) {
  if (row.shape_ && row.shape_.get() != shape_.get()) prepare(row.shape_);
  appendElement(row, tag, row.size() != 0, [&] {
    for (const ColumnTags& column : columns_) {
      if (prefixed_) checkPrefix(column.name, detail::key::kBadTag);
      appendLeaf(column, row.cells_.value(column.slot));
    }
  });
}

void XmlWriter::listUnder(std::string_view tag, const List& list) {
  appendElement(list, tag, list.size() != 0, [&] { appendRows(list); });
}

void XmlWriter::stream(const CorvaneStream& stream) {
  const bool hasContent = !stream.fields_.empty() || !stream.rows_.empty() || !stream.lists_.empty();
  appendElement(stream, stream.name(), hasContent, [&] {
    for (const auto& [key, one] : stream.fields_) field(one);
    for (const Row& one : stream.rows_) row(one);
    for (const auto& [key, one] : stream.lists_) list(one);
  });
}

void XmlWriter::ini(const Ini& ini) {
  appendElement(ini, detail::kIniTag, ini.begin() != ini.end(), [&] {
    for (const auto& [key, section] : ini) rowUnder(detail::kSectionTag, section);
  });
}

void XmlWriter::iniplus(const Iniplus& iniplus) {
  appendElement(iniplus, detail::kIniplusTag, iniplus.begin() != iniplus.end(), [&] {
    for (const auto& [key, section] : iniplus) listUnder(detail::kSectionTag, section);
  });
}

template <class Content>
void XmlWriter::appendElement(const Element& element, std::string_view tag, bool hasContent,
                              Content content) {
  const std::size_t outer = bindings_.size();
  const AttributeMap& attributes = element.attributes();
  checkName(tag, detail::key::kBadTag);
  out_.append(1, '<').append(tag);
  if (!attributes.empty()) appendAttributes(attributes);
  checkPrefix(tag, detail::key::kBadTag);
  if (hasContent) {
    out_ += '>';
    content();
    out_.append("</").append(tag).append(1, '>');
  } else {
    out_ += "/>";
  }
  bindings_.resize(outer);
}

void XmlWriter::appendAttributes(const AttributeMap& attributes) {
  bool prefixed = false;
  for (const auto& [name, value] : attributes) {
    if (value.empty()) continue;
    checkName(name, detail::key::kBadAttributeName);
    out_.append(1, ' ').append(name).append("=\"");
    const std::size_t begin = out_.size();
    appendValue(value, true, detail::key::kBadAttributeValue);
    if (name == "xmlns")
      bind({}, std::string_view(out_).substr(begin));
    else if (name.starts_with(kDeclaration))
      bind(std::string_view(name).substr(kDeclaration.size()), std::string_view(out_).substr(begin));
    else
      prefixed = prefixed || isPrefixed(name);
    out_ += '"';
  }
  if (prefixed) checkPrefixes(attributes);
}

void XmlWriter::bind(std::string_view prefix, std::string_view space) {
  if (prefix == "xmlns") throw TException(detail::key::kBadAttributeName);
  if ((prefix == "xml") != (space == kXmlSpace) || space == kDeclarationSpace)
    throw TException(detail::key::kBadAttributeValue);
  bindings_.push_back({std::string(prefix), std::string(space)});
}

void XmlWriter::checkPrefixes(const AttributeMap& attributes) const {
  std::set<std::pair<std::string_view, std::string_view>> seen;
  for (const auto& [name, value] : attributes) {
    if (value.empty() || !isPrefixed(name) || name.starts_with(kDeclaration)) continue;
    const std::string_view local = std::string_view(name).substr(name.find(':') + 1);
    if (!seen.emplace(spaceOf(name, detail::key::kBadAttributeName), local).second)
      throw TException(detail::key::kAttributeTwice);
  }
}

void XmlWriter::checkName(std::string_view name, const char* key) {
  const bool ascii = norvik::AsciiRun(name) == name.size();
  if (!norvik::IsXmlName(ascii ? name : norvik::Utf8FromAnsi(name))) throw TException(key);
}

std::string_view XmlWriter::spaceOf(std::string_view name, const char* key) const {
  if (!isPrefixed(name)) return {};
  const std::string_view prefix = name.substr(0, name.find(':'));
  if (prefix == "xml") return kXmlSpace;
  const auto bound = std::find_if(bindings_.rbegin(), bindings_.rend(),
                                  [&](const Binding& binding) { return binding.prefix == prefix; });
  if (bound == bindings_.rend()) throw TException(key);
  return bound->space;
}

void XmlWriter::appendLeaf(const ColumnTags& tags, std::string_view value) {
  if (value.empty()) {
    out_ += tags.empty;
    return;
  }
  out_ += tags.open;
  appendValue(value, false, detail::key::kBadText);
  out_ += tags.close;
}

void XmlWriter::appendRows(const List& list) {
  std::size_t more = 0;
  for (const Row& row : list) more += row.cells_.bytes();
  if (list.size() != 0 && list[0].shape_) {
    prepare(list[0].shape_);
    more += list.size() * (tagBytes_ + 2 * list[0].name().size() + 5);
  }
  reserve(more);
  for (const Row& one : list) row(one);
}

void XmlWriter::prepare(const detail::Shared<detail::RowShape>& shape) {
  shape_ = {};
  columns_.clear();
  tagBytes_ = 0;
  prefixed_ = false;
  for (const std::uint32_t slot : shape->order()) {
    const std::string& name = shape->name(slot);
    checkName(name, detail::key::kBadTag);
    columns_.push_back({slot, name, "<" + name + ">", "</" + name + ">", "<" + name + "/>"});
    prefixed_ = prefixed_ || isPrefixed(name);
    tagBytes_ += 2 * name.size() + 5;
  }
  shape_ = shape;
}

void XmlWriter::appendValue(std::string_view value, bool inAttribute, const char* key) {
  const auto kindAt = [&](std::size_t at) { return kKinds[static_cast<unsigned char>(value[at])]; };
  for (std::size_t at = 0; at < value.size();) {
    std::size_t end = at;
    while (end < value.size() && kindAt(end) == Kind::kPlain) ++end;
    out_.append(value, at, end - at);
    at = end;
    if (at == value.size()) return;
    if (kindAt(at) == Kind::kControl) throw TException(key);
    if (kindAt(at) == Kind::kMarkup) {
      out_ += escaped(value[at++], inAttribute);
      continue;
    }
    end = norvik::EndOfValidRun(value, at);
    if (holdsNoncharacter(value.substr(at, end - at))) throw TException(key);
    out_.append(value, at, end - at);
    at = end;
    if (at == value.size() || kindAt(at) != Kind::kForeign) continue;
    out_ += '?';  // what the code page has no character for
    at += norvik::CharacterLength(value, at);
  }
}

void XmlWriter::reserve(std::size_t more) {
  const std::size_t wanted = out_.size() + more + more / 64 + 256;
  if (wanted <= out_.capacity()) return;
  out_.reserve(wanted);
  norvik::PreferLargePages(out_.data(), out_.capacity());
}

namespace {

template <class Document, class Content>
bool step(const Document& document, std::string& text, Content content) {
  try {
    XmlWriter writer(document.encoding());
    (writer.*content)(document);
    text = writer.take();
    return true;
  } catch (const TException&) {
    return false;
  }
}

}  // namespace

bool writeXml(const Field& field, std::string& text) {
  return step(field, text, &XmlWriter::field);
}

bool writeXml(const Row& row, std::string& text) {
  return step(row, text, &XmlWriter::row);
}

bool writeXml(const List& list, std::string& text) {
  return step(list, text, &XmlWriter::list);
}

bool writeXml(const CorvaneStream& stream, std::string& text) {
  return step(stream, text, &XmlWriter::stream);
}

bool writeXml(const Ini& ini, std::string& text) {
  return step(ini, text, &XmlWriter::ini);
}

bool writeXml(const Iniplus& iniplus, std::string& text) {
  return step(iniplus, text, &XmlWriter::iniplus);
}

}  // namespace corvane
