// A named text, fields by name, and the iterator that visits columns of a row as fields.
//
// For callers that handle single values; most read and write them through data/row.h, which makes fields only
// where they are asked for.
#pragma once

#include <cstddef>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "data/element.h"
#include "data/export.h"

namespace corvane {

/// A text value under a tag that serves as its key. Attributes are kept when a field is read, and never
/// written.
class CORVANE_EXPORT Field : public Element {
 public:
  /// Empty name and value.
  Field();
  /// A field under a name, with a value.
  Field(std::string_view name, std::string_view value);
  /// Reads a text; ET10044 where it cannot be parsed or is empty. The encoding is the prolog's, "" without
  /// one.
  explicit Field(std::string_view xml);
  /// Copies all.
  Field(const Field&) = default;
  /// Takes all; the other is empty and keeps its name.
  Field(Field&&) noexcept = default;
  ~Field() override;

  /// Takes a copy of all, the name included.
  Field& operator=(const Field&) = default;
  /// Takes all, the name included.
  Field& operator=(Field&& other) noexcept;

  /// The value, for reading and for assigning through it; valid as long as the field lives.
  std::string& getValue() { return value_; }
  /// The value, for reading.
  const std::string& getValue() const { return value_; }
  /// Replaces the value.
  void setValue(std::string_view value) { value_ = value; }

  /// Prolog and element, without attributes; ET10045 for an empty or ill-formed name or a forbidden
  /// character.
  std::string toString() const override;
  /// Empties attributes, name and value; the encoding stays.
  void clear() override;

  /// Fields are equal when their names are; values are not looked at.
  bool operator==(const Field& other) const { return name() == other.name(); }

 private:
  friend class FieldIterator;
  friend class Row;
  std::string value_;
};

/// The standard map that a MapField is.
using SortedFields = std::map<std::string, Field, std::less<>>;

class Row;

/// Stands at a column of a row or at an entry of a MapField, as a pair of key and Field for reading. At a
/// column the pair is the iterator's own, made when it is first asked for and brought up to date whenever it
/// is asked for again; a reference got through the iterator is valid until the iterator is moved on, assigned
/// to or destroyed. An iterator over a row is valid until a column is added or removed; one over a MapField
/// until its entry is erased.
class CORVANE_EXPORT FieldIterator {
 public:
  /// A standard iterator that is read from and goes both ways.
  using iterator_category = std::input_iterator_tag;
  /// A pair of key and Field.
  using value_type = SortedFields::value_type;
  /// A pair for reading.
  using reference = const value_type&;
  /// The address of a pair for reading.
  using pointer = const value_type*;
  /// Steps between two places.
  using difference_type = std::ptrdiff_t;

  /// Stands nowhere until it is assigned to.
  FieldIterator() = default;
  /// Stands at an entry of a MapField.
  FieldIterator(SortedFields::const_iterator entry) : entry_(entry) {}
  /// Stands at an entry of a MapField.
  FieldIterator(SortedFields::iterator entry) : entry_(entry) {}

  /// The pair; not to be asked for at the end.
  reference operator*() const { return row_ ? column() : *entry_; }
  /// The members of the pair; not to be asked for at the end.
  pointer operator->() const { return &**this; }
  /// Moves to the next column or entry.
  FieldIterator& operator++() {
    pair_.value.reset();
    if (row_)
      ++at_;
    else
      ++entry_;
    return *this;
  }
  /// Moves on and returns an iterator that stands at the place before.
  FieldIterator operator++(int) {
    FieldIterator before = *this;
    ++*this;
    return before;
  }
  /// Moves to the column or entry before.
  FieldIterator& operator--() {
    pair_.value.reset();
    if (row_)
      --at_;
    else
      --entry_;
    return *this;
  }
  /// Moves back and returns an iterator that stands at the place after.
  FieldIterator operator--(int) {
    FieldIterator before = *this;
    --*this;
    return before;
  }
  /// Compares places; both iterators are over the same row or map.
  friend bool operator==(const FieldIterator& left, const FieldIterator& right) {
    return left.at_ == right.at_ && left.entry_ == right.entry_;
  }

 private:
  friend class MapField;
  friend class Row;

  /// The pair of one iterator, which its copies don't share.
  struct Pair {
    Pair() = default;
    Pair(const Pair&) {}
    Pair& operator=(const Pair&) {
      value.reset();
      return *this;
    }
    ~Pair() = default;
    std::optional<value_type> value;
  };

  FieldIterator(const Row* row, std::size_t at) : row_(row), at_(at) {}
  reference column() const;

  const Row* row_ = nullptr;              // null over a MapField
  std::size_t at_ = 0;                    // in a row
  SortedFields::const_iterator entry_{};  // in a MapField
  mutable Pair pair_;
};

/// Fields by key, in byte order: unsigned bytes, a prefix before the longer key, case sensitive. `map[key]`
/// makes a missing field with an empty name. A variable of the type MapField::iterator visits a map or a row,
/// for reading; what begin and find themselves return are the iterators of a standard map, for changing too.
class MapField : public SortedFields {
 public:
  /// Visits a map or a row, for reading.
  using iterator = FieldIterator;
  /// The same type: neither changes an entry.
  using const_iterator = FieldIterator;
  /// The constructors of the standard map.
  using SortedFields::SortedFields;

  /// The removals of the standard map.
  using SortedFields::erase;
  /// Removes the entry at `entry`, which is one of this map, and returns the next one.
  iterator erase(const FieldIterator& entry) { return SortedFields::erase(entry.entry_); }
};

}  // namespace corvane
