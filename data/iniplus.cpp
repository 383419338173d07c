#include "data/iniplus.h"

#include <utility>

#include "data/detail/tags.h"

namespace corvane {

IniplusSection::IniplusSection() : List(detail::tagLabel<detail::kSectionTag>()) {}

IniplusSection::IniplusSection(std::string_view sectionName, const List& list)
    : List(detail::tagLabel<detail::kSectionTag>()) {
  copyAttributes(list);
  setAttribute("name", sectionName);
  for (const Row& row : list) addRow(row);
}

Iniplus::Iniplus() : Element(detail::tagLabel<detail::kIniplusTag>()) {}

Iniplus::~Iniplus() = default;

Iniplus& Iniplus::operator=(const Iniplus& other) {
  if (this == &other) return *this;
  MapIpSection sections = other.sections_;
  sections_.swap(sections);
  copyAttributes(other);
  return *this;
}

Iniplus& Iniplus::operator=(Iniplus&& other) noexcept {
  if (this == &other) return *this;
  moveAttributes(other, sections_.empty());
  sections_ = std::exchange(other.sections_, {});
  return *this;
}

void Iniplus::clear() {
  Element::clear();
  sections_.clear();
}

void Iniplus::addSection(IniplusSection& section) {
  sections_[section.getAttribute("name")] = section;
}

void Iniplus::addSection(IniplusSection&& section) {
  const std::string name = section.getAttribute("name");
  sections_[name] = std::move(section);
}

void Iniplus::addSection(std::string_view sectionName, const List& list) {
  addSection(IniplusSection(sectionName, list));
}

void Iniplus::setSection(std::string_view sectionName, const List& list) {
  addSection(sectionName, list);
}

List Iniplus::getSection(std::string_view sectionName) const {
  List list;
  if (const auto found = sections_.find(sectionName); found != sections_.end()) list = found->second;
  return list;
}

PropertyVector Iniplus::getPropertyVector(std::string_view sectionName) const {
  return PropertyVector(getSection(sectionName));
}

}  // namespace corvane
