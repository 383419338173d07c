// The message document: what a request to the bank and its answer are.
//
// For the exchange with the bank and for whoever builds requests or reads answers. A stream holds fields,
// rows and lists by their tags alone; which of them a transaction wants is the caller's matter.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "data/export.h"
#include "data/field.h"
#include "data/list.h"
#include "data/row.h"

namespace corvane {

/// Lists by name, in byte order.
using MapList = std::map<std::string, List, std::less<>>;

/// What goes over the wire: top-level fields by name, top-level rows in the order of insertion, which may
/// differ in their columns, and lists by their attribute "name". The default tag is "stream".
class CORVANE_EXPORT CorvaneStream : public Element {
 public:
  /// An empty stream under the tag "stream".
  CorvaneStream();
  /// Copies all.
  CorvaneStream(const CorvaneStream&) = default;
  /// Takes all.
  CorvaneStream(CorvaneStream&&) noexcept = default;
  /// An empty stream, then fromString.
  explicit CorvaneStream(std::string_view xml);
  ~CorvaneStream() override;

  /// Takes fields, rows, lists and attributes; tag and encoding of this stream stay.
  CorvaneStream& operator=(const CorvaneStream& other);
  /// The same by move.
  CorvaneStream& operator=(CorvaneStream&& other) noexcept;

  /// Reads a text whose root may bear any tag, which the stream takes; the encoding becomes the prolog's, ""
  /// without one. ET10016 where it cannot be parsed; the stream keeps what was read up to there. Fields, rows
  /// and lists may stand in any order. The tag alone decides: a top-level field can't be called "list" or
  /// "row", a column of a row not "row".
  void fromString(std::string_view xml);
  /// Prolog, then fields in byte order, rows, lists in byte order, without white space between them; ET10017
  /// where a name is no XML name or a character is forbidden in XML.
  std::string toString() const override;
  /// Empties fields, rows and lists; attributes, tag and encoding stay.
  void clear() override;

  /// Stores a full copy under the field's name; it replaces a field of that name.
  void addField(const Field& field);
  /// addField for each column of `row`.
  void addFields(const Row& row);
  /// The value of a field; "" for a missing one, which is not added.
  std::string getValue(std::string_view key) const;
  /// A copy of the field. A missing one is added first, with an empty name: the stream has no text form from
  /// then on.
  Field getField(std::string_view key);
  /// Returns a copy of all fields.
  MapField getFields() const { return fields_; }
  /// A new row of the fields.
  Row getFieldsRow() const;

  /// Sets the tag of `row` to "row" and appends a copy.
  void addRow(Row& row);
  /// Appends the row itself under the tag "row".
  void addRow(Row&& row);
  /// Number of top-level rows.
  int getRowCount() const { return static_cast<int>(rows_.size()); }
  /// A copy of the row; ET10040 for an index below 0 or not below the count.
  Row getRow(int index) const;

  /// Sets the tag of `list` to "list" and that of its rows to "row", empties the rows' attribute "name", and
  /// stores a copy under its attribute "name"; it replaces a list of that name. ET10043 where that attribute
  /// is missing or empty; the tag of `list` is set then, the stream unchanged.
  void addList(List& list);
  /// The same; takes the list itself.
  void addList(List&& list);
  /// The list of that name, valid until it is replaced or the stream is cleared. For a missing one an empty
  /// list, the same for every missing name, which is not to be filled.
  List& getList(std::string_view name);
  /// The same for reading.
  const List& getList(std::string_view name) const;
  /// The first list in byte order of their names.
  MapList::iterator listsBegin() { return lists_.begin(); }
  /// The place after the last list.
  MapList::iterator listsEnd() { return lists_.end(); }
  /// The first list, for reading.
  MapList::const_iterator listsBegin() const { return lists_.begin(); }
  /// The place after the last list, for reading.
  MapList::const_iterator listsEnd() const { return lists_.end(); }

 private:
  friend class XmlWriter;
  /// Marks a list as one of a stream; returns its name.
  static std::string prepare(List& list);

  List emptyList_;
  MapField fields_;
  std::vector<Row> rows_;
  MapList lists_;
};

}  // namespace corvane
