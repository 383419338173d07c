// Configuration documents whose sections are rows of settings.
//
// For the host's configuration and the working tables that a screen stores with the host. Sections of more
// than one row are data/iniplus.h's.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "data/export.h"
#include "data/row.h"

namespace corvane {

/// A row of settings under the tag "section"; its key is its attribute "name".
class CORVANE_EXPORT IniSection : public Row {
 public:
  /// An empty section without a name.
  IniSection();
  /// Attributes and columns of `row`, and the attribute "name" set to `sectionName`.
  IniSection(std::string_view sectionName, const Row& row);
};

/// Sections by name, in byte order.
using MapIniSection = std::map<std::string, IniSection, std::less<>>;

/// Named sections of one row each. The tag in the text form is always "ini".
class CORVANE_EXPORT Ini : public Element {
 public:
  /// A document without sections.
  Ini();
  /// Copies all.
  Ini(const Ini&) = default;
  /// Takes all.
  Ini(Ini&&) noexcept = default;
  /// An empty document, then fromString.
  explicit Ini(std::string_view xml);
  ~Ini() override;

  /// Takes the sections; attributes, tag and encoding of this document stay.
  Ini& operator=(const Ini& other);
  /// The same by move; from a document into one that was not moved from it copies.
  Ini& operator=(Ini&& other);

  /// Reads a text of the elements "ini", "section" and fields; the encoding becomes the prolog's, "" without
  /// one. ET10046 where it cannot be parsed or an element has another name; what was read up to there stays.
  /// ET10047 is reserved for a root of another name.
  void fromString(std::string_view xml);
  /// Prolog and element; ET10048 where a name is no XML name or a character is forbidden in XML.
  std::string toString() const override;
  /// Empties attributes and sections; tag and encoding stay.
  void clear() override;

  /// Stores columns and attributes under the section's attribute "name", which is made empty if it is
  /// missing. They replace a section of that name.
  void addSection(IniSection& section);
  /// The same; takes the section itself.
  void addSection(IniSection&& section);
  /// Stores a section of that name with the content and attributes of `row`.
  void addSection(std::string_view sectionName, const Row& row);
  /// A new row with the columns and attributes of the section; an empty one for a missing name.
  Row getSection(std::string_view sectionName) const;

  /// The first section in byte order of their names.
  MapIniSection::iterator begin() { return sections_.begin(); }
  /// The place after the last section.
  MapIniSection::iterator end() { return sections_.end(); }
  /// The first section, for reading.
  MapIniSection::const_iterator begin() const { return sections_.begin(); }
  /// The place after the last section, for reading.
  MapIniSection::const_iterator end() const { return sections_.end(); }
  /// The section of that name, or end() for a missing one.
  MapIniSection::iterator find(std::string_view sectionName) { return sections_.find(sectionName); }
  /// The section of that name, for reading, or end() for a missing one.
  MapIniSection::const_iterator find(std::string_view sectionName) const {
    return sections_.find(sectionName);
  }

 private:
  MapIniSection sections_;
};

}  // namespace corvane
