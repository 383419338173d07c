// Configuration documents whose sections are rows.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "data/row.h"

namespace corvane {

// A row of settings under the tag "section"; its key is its attribute "name".
class IniSection : public Row {
 public:
  IniSection();
  // Attributes and columns of `row`, and the attribute "name" set to `sectionName`.
  IniSection(std::string_view sectionName, const Row& row);
};

// Sections by name, in byte order.
using MapIniSection = std::map<std::string, IniSection, std::less<>>;

// Named sections of one row each. The tag in the text form is always "ini".
class Ini : public Element {
 public:
  Ini();
  Ini(const Ini&) = default;
  Ini(Ini&&) noexcept = default;
  // As fromString.
  explicit Ini(std::string_view xml);
  ~Ini() override;

  // Takes the sections; attributes, tag and encoding of this document stay. Moving from a document into one
  // that was not moved from itself copies it.
  Ini& operator=(const Ini& other);
  Ini& operator=(Ini&& other);

  // Reads a text of the elements "ini", "section" and fields; the encoding becomes the prolog's, "" without
  // one. ET10046 where it cannot be parsed or an element has another name; what was read up to there stays.
  // ET10047 is kept for a root of another name.
  void fromString(std::string_view xml);
  // Prolog and element; ET10048 where a name is no XML name or a character is forbidden in XML.
  std::string toString() const override;
  // Empties attributes and sections; tag and encoding stay.
  void clear() override;

  // Stores columns and attributes under the section's attribute "name", which is made empty if it is missing,
  // in place of a section of that name.
  void addSection(IniSection& section);
  void addSection(IniSection&& section);
  void addSection(std::string_view sectionName, const Row& row);
  // A new row with the columns and attributes of the section; an empty one for a missing name.
  Row getSection(std::string_view sectionName) const;

  // The sections in byte order of their names; find gives end() for a missing one.
  MapIniSection::iterator begin() { return sections_.begin(); }
  MapIniSection::iterator end() { return sections_.end(); }
  MapIniSection::const_iterator begin() const { return sections_.begin(); }
  MapIniSection::const_iterator end() const { return sections_.end(); }
  MapIniSection::iterator find(std::string_view sectionName) { return sections_.find(sectionName); }
  MapIniSection::const_iterator find(std::string_view sectionName) const {
    return sections_.find(sectionName);
  }

 private:
  MapIniSection sections_;
};

}  // namespace corvane
