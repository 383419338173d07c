// Tables: rows with equal columns, and the searches over them.
//
// For answers of the bank, dictionaries and all that a list view shows. A list checks columns where a row
// comes in; it does not watch what happens to a row that was given out by reference.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/export.h"
#include "data/row.h"
#include "data/string_vector.h"

namespace corvane {

/// Rows in the order of insertion, all with the columns of the first one as far as they came in through
/// addRow or addProperty; a row reached by operator[] can be widened alone. The default tag is "list".
/// Bounds: an index counts from 0 to size() - 1.
class CORVANE_EXPORT List : public Element {
 public:
  /// An empty list under the tag "list".
  List();
  /// Copies all; the rows share their names and values.
  List(const List&) = default;
  /// Takes all.
  List(List&&) noexcept = default;
  /// An empty list, then fromString.
  explicit List(std::string_view xml);
  ~List() override;

  /// Takes rows and attributes; tag and encoding of this list stay.
  List& operator=(const List& other);
  /// The same by move.
  List& operator=(List&& other) noexcept;

  /// Reads a text. ET10052 where it cannot be parsed or its rows differ in columns; the list keeps what was
  /// read up to there. ET10100 where the root's tag is not "list"; the list holds what was read. The encoding
  /// becomes the prolog's.
  void fromString(std::string_view xml);
  /// Prolog and element; ET10053 where a name is no XML name or a character is forbidden in XML.
  std::string toString() const override;
  /// Empties attributes and rows; tag and encoding stay.
  void clear() override;

  /// Number of rows.
  unsigned size() const { return static_cast<unsigned>(rows_.size()); }
  /// The row itself, valid until a row is added or removed; ET10104 for a bad index.
  Row& operator[](unsigned index);
  /// The same for reading.
  const Row& operator[](unsigned index) const;
  /// A copy of the row; ET10111 for a bad index.
  Row getRow(unsigned index) const;
  /// A copy of the rows.
  std::vector<Row> getRows() const { return rows_; }
  /// The first row; iterators are valid until a row is added or removed.
  std::vector<Row>::iterator begin() { return rows_.begin(); }
  /// The place after the last row.
  std::vector<Row>::iterator end() { return rows_.end(); }
  /// The first row, for reading.
  std::vector<Row>::const_iterator begin() const { return rows_.begin(); }
  /// The place after the last row, for reading.
  std::vector<Row>::const_iterator end() const { return rows_.end(); }

  /// True if the list is empty or the first row has the columns of `row`.
  bool isCompatible(const Row& row) const;
  /// Appends a copy, tag included; ET10101 for other columns, and the list is unchanged.
  void addRow(const Row& row);
  /// Appends the row itself; ET10101 for other columns, and list and row are unchanged.
  void addRow(Row&& row);
  /// Appends columns and attributes under the tag "row"; ET10102 for other columns.
  void addProperty(const Property& property);
  /// Removes a row; a bad index does nothing.
  void removeRow(unsigned index);

  /// The index of the first row at or after `from` whose column equals `value`, byte by byte, or -1. Each
  /// visited row without the column gets it, empty; ET10080 for an empty `column` where a row is visited.
  int find(std::string_view column, std::string_view value, unsigned from = 0);
  /// The rows whose column is one of `values`, in order, in a new list without attributes. Rows without the
  /// column get it as in find.
  List select(std::string_view column, const StringVector& values);
  /// A new list of the rows that agree with `criteria`. `matchAll`: every criterion's column has its value,
  /// and a missing column counts as ""; no criteria keep all. Otherwise: at least one such column exists and
  /// has the value; no criteria keep none. Stored rows don't change.
  /// ET10080 for a criterion without a name under `matchAll`.
  List filter(const Row& criteria, bool matchAll) const;

 protected:
  /// An empty list under `tag`.
  explicit List(const detail::Label& tag);

 private:
  friend class CorvaneStream;
  /// addRow with the key of its failure.
  void append(Row&& row, const char* key);
  /// The value of a column that is made where it is missing.
  static std::string_view valueIn(Row& row, std::string_view column);

  std::vector<Row> rows_;
};

/// The same table under a class of its own.
class CORVANE_EXPORT PropertyVector : public List {
 public:
  /// An empty list under the tag "list".
  PropertyVector();
  /// Rows and attributes of `list`; tag "list", default encoding.
  PropertyVector(const List& list);
  /// Copies all.
  PropertyVector(const PropertyVector&) = default;
  /// Takes all.
  PropertyVector(PropertyVector&&) noexcept = default;
  /// Takes rows and attributes; tag and encoding stay.
  PropertyVector& operator=(const PropertyVector&) = default;
  /// The same by move.
  PropertyVector& operator=(PropertyVector&&) noexcept = default;
  ~PropertyVector() override;
};

}  // namespace corvane
