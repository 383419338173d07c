// Configuration documents whose sections are lists of rows.
//
// For the menu, the column tables and the saved layouts. Sections of one row are data/ini.h's.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "data/export.h"
#include "data/list.h"

namespace corvane {

/// A list of settings under the tag "section"; its key is its attribute "name".
class CORVANE_EXPORT IniplusSection : public List {
 public:
  /// An empty section without a name.
  IniplusSection();
  /// Attributes and rows of `list`, and the attribute "name" set to `sectionName`; ET10101 where the rows
  /// differ in their columns.
  IniplusSection(std::string_view sectionName, const List& list);
};

/// Sections by name, in byte order.
using MapIpSection = std::map<std::string, IniplusSection, std::less<>>;

/// Named sections of one list each. The tag in the text form is always "iniplus".
class CORVANE_EXPORT Iniplus : public Element {
 public:
  /// A document without sections.
  Iniplus();
  /// Copies all.
  Iniplus(const Iniplus&) = default;
  /// Takes all.
  Iniplus(Iniplus&&) noexcept = default;
  /// An empty document, then fromString.
  explicit Iniplus(std::string_view xml);
  ~Iniplus() override;

  /// Takes sections and attributes; tag and encoding of this document stay.
  Iniplus& operator=(const Iniplus& other);
  /// The same by move.
  Iniplus& operator=(Iniplus&& other) noexcept;

  /// Reads a text of the elements "iniplus", "section", "row" and fields; the encoding becomes the prolog's,
  /// "" without one. ET10049 where it cannot be parsed, an element has another name or rows of a section
  /// differ in their columns; what was read up to there stays. ET10050 is reserved for a root of another
  /// name.
  void fromString(std::string_view xml);
  /// Prolog and element; ET10051 where a name is no XML name or a character is forbidden in XML.
  std::string toString() const override;
  /// Empties attributes and sections; tag and encoding stay.
  void clear() override;

  /// Stores rows and attributes under the section's attribute "name", which is made empty if it is missing.
  /// They replace a section of that name.
  void addSection(IniplusSection& section);
  /// The same; takes the section itself.
  void addSection(IniplusSection&& section);
  /// Stores a section of that name with the content and attributes of `list`.
  void addSection(std::string_view sectionName, const List& list);
  /// addSection under its second name.
  void setSection(std::string_view sectionName, const List& list);
  /// A new list with the rows and attributes of the section; an empty one for a missing name.
  List getSection(std::string_view sectionName) const;
  /// getSection as a PropertyVector: tag "list", default encoding.
  PropertyVector getPropertyVector(std::string_view sectionName) const;

  /// The first section in byte order of their names.
  MapIpSection::iterator begin() { return sections_.begin(); }
  /// The place after the last section.
  MapIpSection::iterator end() { return sections_.end(); }
  /// The first section, for reading.
  MapIpSection::const_iterator begin() const { return sections_.begin(); }
  /// The place after the last section, for reading.
  MapIpSection::const_iterator end() const { return sections_.end(); }
  /// The section of that name, or end() for a missing one.
  MapIpSection::iterator find(std::string_view sectionName) { return sections_.find(sectionName); }
  /// The section of that name, for reading, or end() for a missing one.
  MapIpSection::const_iterator find(std::string_view sectionName) const {
    return sections_.find(sectionName);
  }

 private:
  MapIpSection sections_;
};

}  // namespace corvane
