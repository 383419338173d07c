#include "data/element.h"

#include <utility>

namespace corvane {
namespace {

const Label& DefaultEncoding() {
  static const Label label("UTF-8");
  return label;
}

}  // namespace

Element::Element() : encoding_(DefaultEncoding()) {}

Element::Element(const Label& name) : name_(name), encoding_(DefaultEncoding()) {}

Element::~Element() = default;

void Element::clear() {
  attributes_ = {};
}

std::string Element::getName() const {
  return name_.text();
}

void Element::setName(std::string_view name) {
  name_.assign(name);
}

std::string Element::getEncoding() const {
  return encoding_.text();
}

void Element::setEncoding(std::string_view encoding) {
  encoding_.assign(encoding);
}

std::string Element::getAttribute(std::string_view key) {
  const AttributeMap& map = attributes();
  if (const auto found = map.find(key); found != map.end()) return found->second;
  setAttribute(key, {});
  return {};
}

void Element::setAttribute(std::string_view key, std::string_view value) {
  AttributeMap& map = attributes_.edit().map;
  if (const auto found = map.find(key); found != map.end())
    found->second = value;
  else
    map.emplace(key, value);
}

AttributeMap Element::getAttributes() const {
  return attributes();
}

void Element::setAttributes(const AttributeMap& more) {
  if (more.empty() || &more == &attributes()) return;
  AttributeMap& map = attributes_.edit().map;
  for (const auto& [key, value] : more) map[key] = value;
}

const AttributeMap& Element::attributes() const {
  static const AttributeMap none;
  return attributes_ ? attributes_->map : none;
}

bool Element::hasExtra() const {
  if (attributes_) return true;
  const Label& plain = DefaultEncoding();
  return !encoding_.sharedWith(plain) && encoding() != plain.text();
}

void Element::swapElement(Element& other) noexcept {
  std::swap(name_, other.name_);
  std::swap(encoding_, other.encoding_);
  std::swap(attributes_, other.attributes_);
}

}  // namespace corvane
