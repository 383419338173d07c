// The record of the whole system: named text columns in one element.
//
// Everything that is read, shown, sent or stored passes through rows, so reading a column and copying a row
// are made cheap. How names and values are shared is a matter of data/detail/ and shows in the contract of
// references alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "data/detail/row_cells.h"
#include "data/detail/row_shape.h"
#include "data/element.h"
#include "data/export.h"
#include "data/field.h"

namespace corvane {

namespace detail {
class RowBuilder;
}

/// A set of named text columns in byte order of their names; the order of insertion is lost. The default tag
/// is "row".
///
/// Copies share names and values, so copying a row or a list of rows costs a few pointers for each row. A
/// reference from operator[] stays valid until its column is removed, the row is cleared, assigned to or
/// destroyed, or was moved and the object moved to meets one of these; adding columns, copying and moving the
/// row (a list that grows moves its rows) don't touch it.
class CORVANE_EXPORT Row : public Element {
 public:
  /// Visits the columns in byte order, for reading.
  using iterator = FieldIterator;
  /// The same type: neither changes a column.
  using const_iterator = FieldIterator;

  /// A row without columns under the tag "row".
  Row();
  /// Copies all; names and values are shared.
  Row(const Row& other);
  /// Takes all; references to values of `other` refer to this row's from then on.
  Row(Row&&) noexcept = default;
  /// Reads a text whose root may bear any tag, which the row takes; ET10057 where it cannot be parsed.
  explicit Row(std::string_view xml);
  ~Row() override;

  /// Takes columns and attributes; tag and encoding of this row stay.
  Row& operator=(const Row& other);
  /// The same by move; references to values of `other` refer to this row's from then on.
  Row& operator=(Row&& other) noexcept;

  /// The value of a column, to read and to assign through. A missing column is added with an empty value, so
  /// a row that was only read from becomes wider; getValue, getField and hasField look without that. ET10080
  /// for an empty key.
  std::string& operator[](std::string_view key);
  /// A copy of the value; "" for a missing column, which is not added.
  std::string getValue(std::string_view key) const;

  /// Stores a full copy under the field's name; it replaces a field of that name.
  void addField(const Field& field);
  /// A copy of the field; an empty Field for a missing column, which is not added.
  Field getField(std::string_view key) const;
  /// True if there is a column of that name.
  bool hasField(std::string_view key) const;
  /// 1 if there is a column of that name, else 0.
  int countField(std::string_view key) const;
  /// True if a column of the field's name has the field's value.
  bool containsField(const Field& field) const;
  /// Removes a column and what refers to its value; a missing one is no error.
  void removeField(std::string_view key);

  /// The first column in byte order, as a pair of key and Field for reading.
  FieldIterator begin() const;
  /// The place after the last column.
  FieldIterator end() const;

  /// Number of columns.
  std::size_t size() const { return shape_ ? shape_->columns() : 0; }
  /// True if both rows have the same column names; values, attributes and tags play no part.
  bool sameColumns(const Row& other) const;

  /// Prolog and element; ET10058 where a name is no XML name or a character is forbidden in XML.
  std::string toString() const override;
  /// Empties attributes and columns; tag and encoding stay.
  void clear() override;

 protected:
  /// An empty row under `tag`.
  explicit Row(const detail::Label& tag);
  /// Takes columns and attributes of `other`; tag and encoding of this row stay.
  void copyContent(const Row& other);

 private:
  friend class FieldIterator;
  friend class List;
  friend class detail::RowBuilder;
  friend class XmlWriter;

  /// What a field has beside name and value, kept only for fields that have it.
  struct FieldExtra {
    detail::Shared<detail::AttributePart> attributes;
    detail::Label encoding;
  };
  struct FieldExtras : detail::Counted<FieldExtras> {
    std::map<std::uint32_t, FieldExtra> bySlot;
  };

  /// The slot of a column, or RowShape::kNoSlot.
  std::uint32_t find(std::string_view key) const;
  /// Adds a column that is missing; returns its slot, whose value is empty.
  std::uint32_t add(std::string_view key);
  /// A copy of the field in a slot.
  Field fieldIn(std::uint32_t slot) const;
  /// Makes a default field the one of a column.
  void show(std::uint32_t slot, Field& field) const;
  /// True if `field` is as FieldIn gives it.
  bool holds(std::uint32_t slot, const Field& field) const;
  /// What the field in a slot has beside name and value; null for a plain one.
  const FieldExtra* extraOf(std::uint32_t slot) const;

  detail::Shared<detail::RowShape> shape_;  // null for a row without columns
  detail::RowCells cells_;
  detail::Shared<FieldExtras> extras_;
};

/// The data of one item of a list view: a Row under the tag "property".
class CORVANE_EXPORT Property : public Row {
 public:
  /// A row without columns under the tag "property".
  Property();
  /// Columns and attributes of `row`; tag "property", default encoding.
  Property(const Row& row);
  /// Columns and attributes of `other`; the copy's tag is "row", its encoding the default.
  Property(const Property& other);
  /// Takes all, the tag included.
  Property(Property&&) noexcept = default;
  /// Takes columns and attributes; tag and encoding stay.
  Property& operator=(const Property&) = default;
  /// The same by move.
  Property& operator=(Property&&) noexcept = default;
  ~Property() override;
};

}  // namespace corvane
