// The record of the whole system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "data/element.h"
#include "data/field.h"
#include "data/row_cells.h"
#include "data/row_shape.h"

namespace corvane {

// A set of named text columns in byte order of their names; the order of insertion is lost. The default tag
// is "row".
//
// Copies share names and values, so copying a row or a list of rows costs a few pointers for each row. A
// reference from operator[] stays valid until its column is removed, the row is cleared, assigned to or
// destroyed, or was moved and the object moved to meets one of these; adding columns, copying and moving the
// row (a list that grows moves its rows) don't touch it.
class Row : public Element {
 public:
  using iterator = FieldIterator;
  using const_iterator = FieldIterator;

  Row();
  Row(const Row&) = default;
  Row(Row&&) noexcept = default;
  // Reads a text whose root may bear any tag, which the row takes; ET10057 where it cannot be parsed.
  explicit Row(std::string_view xml);
  ~Row() override;

  // Takes columns and attributes; tag and encoding of this row stay.
  Row& operator=(const Row& other);
  Row& operator=(Row&& other) noexcept;

  // The value of a column, to read and to assign through. A missing column is added with an empty value, so a
  // row that was only read from becomes wider; getValue, getField and hasField look without that. ET10080 for
  // an empty key.
  std::string& operator[](std::string_view key);
  // A copy of the value; "" for a missing column, which is not added.
  std::string getValue(std::string_view key) const;

  // Stores a full copy under the field's name, in place of a field of that name.
  void addField(const Field& field);
  // A copy of the field; an empty Field for a missing column, which is not added.
  Field getField(std::string_view key) const;
  bool hasField(std::string_view key) const;
  // 1 or 0.
  int countField(std::string_view key) const;
  // True if a column of the field's name has the field's value.
  bool containsField(const Field& field) const;
  // A missing column is no error.
  void removeField(std::string_view key);

  // The columns in byte order as pairs of key and Field, for reading.
  FieldIterator begin() const;
  FieldIterator end() const;

  // Number of columns.
  std::size_t size() const { return shape_ ? shape_->columns() : 0; }
  // True if both rows have the same column names; values, attributes and tags play no part.
  bool sameColumns(const Row& other) const;

  // Prolog and element; ET10058 where a name is no XML name or a character is forbidden in XML.
  std::string toString() const override;
  // Empties attributes and columns; tag and encoding stay.
  void clear() override;

 protected:
  // An empty row under `tag`.
  explicit Row(const Label& tag);
  void copyContent(const Row& other);

 private:
  friend class FieldIterator;
  friend class List;
  friend class RowBuilder;
  friend class XmlWriter;

  // What a field has beside name and value, kept only for fields that have it.
  struct FieldExtra {
    Shared<AttributePart> attributes;
    Label encoding;
  };
  struct FieldExtras : Counted<FieldExtras> {
    std::map<std::uint32_t, FieldExtra> bySlot;
  };

  std::uint32_t Find(std::string_view key) const;
  std::uint32_t Add(std::string_view key);
  Field FieldIn(std::uint32_t slot) const;
  // Makes a default field the one of a column.
  void Show(std::uint32_t slot, Field& field) const;
  // True if `field` is as FieldIn gives it.
  bool Holds(std::uint32_t slot, const Field& field) const;
  const FieldExtra* ExtraOf(std::uint32_t slot) const;

  Shared<RowShape> shape_;  // null for a row without columns
  RowCells cells_;
  Shared<FieldExtras> extras_;
};

// The data of one item of a list view: a Row under the tag "property".
class Property : public Row {
 public:
  Property();
  // Columns and attributes of `row`; tag "property", default encoding.
  Property(const Row& row);
  // Columns and attributes of `other`; the copy's tag is "row", its encoding the default.
  Property(const Property& other);
  Property(Property&&) noexcept = default;
  Property& operator=(const Property&) = default;
  Property& operator=(Property&&) noexcept = default;
  ~Property() override;
};

}  // namespace corvane
