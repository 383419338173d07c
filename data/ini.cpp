#include "data/ini.h"

#include <utility>

#include "data/detail/tags.h"

namespace corvane {

IniSection::IniSection() : Row(detail::tagLabel<detail::kSectionTag>()) {}

IniSection::IniSection(std::string_view sectionName, const Row& row)
    : Row(detail::tagLabel<detail::kSectionTag>()) {
  copyContent(row);
  setAttribute("name", sectionName);
}

Ini::Ini() : Element(detail::tagLabel<detail::kIniTag>()) {}

Ini::~Ini() = default;

Ini& Ini::operator=(const Ini& other) {
  if (this == &other) return *this;
  const MapIniSection sections = other.sections_;
  sections_.clear();
  for (const auto& [name, section] : sections) addSection(IniSection(section));
  return *this;
}

Ini& Ini::operator=(Ini&& other) {
  if (!isMovedFrom() || !sections_.empty()) return *this = other;
  moveAttributes(other, true);
  sections_ = std::exchange(other.sections_, {});
  return *this;
}

void Ini::clear() {
  Element::clear();
  sections_.clear();
}

void Ini::addSection(IniSection& section) {
  sections_[section.getAttribute("name")] = section;
}

void Ini::addSection(IniSection&& section) {
  const std::string name = section.getAttribute("name");
  sections_[name] = std::move(section);
}

void Ini::addSection(std::string_view sectionName, const Row& row) {
  addSection(IniSection(sectionName, row));
}

Row Ini::getSection(std::string_view sectionName) const {
  Row row;
  if (const auto found = sections_.find(sectionName); found != sections_.end()) row = found->second;
  return row;
}

}  // namespace corvane
