#include "data/element.h"

#include <utility>

namespace corvane {

using detail::AttributePart;
using detail::Label;
using detail::Shared;

namespace {

const Label& defaultEncoding() {
  static const detail::PermanentLabel kLabel("UTF-8");
  return kLabel;
}

// The attributes, none, of an element that was moved from.
AttributePart* movedFrom() {
  static detail::PermanentPart<AttributePart> part;
  return part.get();
}

}  // namespace

Element::Element() : encoding_(defaultEncoding()) {}

Element::Element(const Label& name) : name_(name), encoding_(defaultEncoding()) {}

Element::Element(const Element& other) : name_(other.name_), encoding_(other.encoding_) {
  copyAttributes(other);
}

Element::Element(Element&& other) noexcept
    : name_(other.name_),
      encoding_(other.encoding_),
      attributes_(std::exchange(other.attributes_, Shared(movedFrom()))) {}

Element& Element::operator=(const Element& other) {
  name_ = other.name_;
  encoding_ = other.encoding_;
  copyAttributes(other);
  return *this;
}

Element& Element::operator=(Element&& other) noexcept {
  name_ = other.name_;
  encoding_ = other.encoding_;
  attributes_ = std::exchange(other.attributes_, Shared(movedFrom()));
  return *this;
}

Element::~Element() = default;

void Element::clear() {
  attributes_ = {};
}

std::string Element::getName() const {
  return name_.text();
}

void Element::setName(std::string_view name) {
  settle();
  name_.assign(name);
}

std::string Element::getEncoding() const {
  return encoding_.text();
}

void Element::setEncoding(std::string_view encoding) {
  settle();
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

const std::string& Element::name() const {
  return name_.text();
}

const std::string& Element::encoding() const {
  return encoding_.text();
}

const AttributeMap& Element::attributes() const {
  static const AttributeMap kNone;
  return attributes_ ? attributes_->map : kNone;
}

bool Element::hasExtra() const {
  if (!attributes().empty()) return true;
  const Label& plain = defaultEncoding();
  return !encoding_.sharedWith(plain) && encoding() != plain.text();
}

void Element::copyAttributes(const Element& other) {
  if (other.isMovedFrom())
    attributes_ = {};
  else
    attributes_ = other.attributes_;
}

void Element::moveAttributes(Element& other, bool empty) noexcept {
  const bool whole = empty && isMovedFrom();
  if (whole) {
    name_ = other.name_;
    encoding_ = other.encoding_;
  }
  attributes_ = std::exchange(other.attributes_, Shared(movedFrom()));
  if (!whole) settle();
}

bool Element::isMovedFrom() const {
  return attributes_ && attributes_.get() == movedFrom();
}

void Element::settle() {
  if (isMovedFrom()) attributes_ = {};
}

}  // namespace corvane
