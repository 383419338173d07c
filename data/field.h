// A named text, and fields by name.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "data/element.h"

namespace corvane {

// A text value under a tag that serves as its key. Attributes are kept when a field is read, and never
// written.
class Field : public Element {
 public:
  // Empty name and value.
  Field();
  Field(std::string_view name, std::string_view value);
  // Reads a text; ET10044 where it cannot be parsed or is empty. The encoding is the prolog's, "" without
  // one.
  explicit Field(std::string_view xml);

  // For reading and for assigning through it.
  std::string& getValue() { return value_; }
  const std::string& getValue() const { return value_; }
  void setValue(std::string_view value) { value_ = value; }

  // Prolog and element, without attributes; ET10045 for an empty or ill-formed name or a forbidden character.
  std::string toString() const override;
  // Empties attributes, name and value; the encoding stays.
  void clear() override;

  // Fields are equal when their names are; values are not looked at.
  bool operator==(const Field& other) const { return name() == other.name(); }

 private:
  friend class Row;
  std::string value_;
};

// Fields by key, in byte order: unsigned bytes, a beginning before the longer key, case sensitive. `map[key]`
// makes a missing field with an empty name.
class MapField : public std::map<std::string, Field, std::less<>> {
 public:
  using std::map<std::string, Field, std::less<>>::map;
};

}  // namespace corvane
