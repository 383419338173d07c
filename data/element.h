// The root of all documents: a tag, attributes and the label of an encoding.
//
// Every class of documents derives from Element, and what holds for all of them (what a copy takes, what a
// document that was moved from can do) stands here. An element knows neither content nor the text form of
// one.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "data/detail/shared.h"
#include "data/export.h"

namespace corvane {

/// Attributes by name, in byte order.
using AttributeMap = std::map<std::string, std::string, std::less<>>;

/// An XML element in memory: a tag, attributes in byte order of their names, and the label of the encoding
/// that its text form declares, "UTF-8" by default. The label never drives a conversion. A text that is read
/// into a document must not be one of the document's own values.
///
/// Documents are values; copying or moving one into a new object takes all of it. Assigning one to a row,
/// list, stream, section or document of sections leaves the target's tag and label alone, by copy or by move.
/// A document that was moved from is empty, keeps its own tag and label, and serves like any other. The one
/// difference: as long as nothing has been done to it since, a document that is moved into it comes whole,
/// with tag and label. So std::swap, sorting, rotating and inserting, which move documents into the places of
/// those that they have moved away, keep each document together; erasing from a vector moves into places that
/// still hold theirs, and so leaves the tags where they are.
class CORVANE_EXPORT Element {
 public:
  virtual ~Element();

  /// Returns the XML text, in the ANSI code page. Throws TException with the class's own key where there is
  /// none.
  virtual std::string toString() const = 0;
  /// Empties the attributes; tag and encoding stay.
  virtual void clear();

  /// Returns a copy of the tag.
  std::string getName() const;
  /// Replaces the tag; whether it is an XML name is checked when the text is written.
  void setName(std::string_view name);
  /// Returns a copy of the label of the encoding.
  std::string getEncoding() const;
  /// Replaces the label of the encoding; whether a prolog can hold it is checked when the text is written.
  void setEncoding(std::string_view encoding);

  /// Returns the value of an attribute. A missing one is made with an empty value, which never shows in the
  /// text form.
  std::string getAttribute(std::string_view key);
  /// Sets an attribute, which is added if it is missing.
  void setAttribute(std::string_view key, std::string_view value);
  /// Returns a copy of all attributes.
  AttributeMap getAttributes() const;
  /// Sets each attribute of `more`; the others stay.
  void setAttributes(const AttributeMap& more);

  /// The tag by reference, for reading; valid until the element changes.
  const std::string& name() const;
  /// The label of the encoding by reference, for reading; valid until the element changes.
  const std::string& encoding() const;
  /// The attributes by reference, for reading; valid until the element changes.
  const AttributeMap& attributes() const;

  /// True where there are attributes or an encoding other than the default one.
  bool hasExtra() const;

 protected:
  /// An element without a tag.
  Element();
  /// An element under the tag `name`.
  explicit Element(const detail::Label& name);
  /// Takes all of `other`.
  Element(const Element& other);
  /// Takes all of `other`, which keeps its tag and label.
  Element(Element&& other) noexcept;
  /// Takes all of `other`; a class whose tag and label stay assigns with copyAttributes instead.
  Element& operator=(const Element& other);
  /// Takes all of `other`; a class whose tag and label stay assigns with moveAttributes instead.
  Element& operator=(Element&& other) noexcept;

  /// Replaces the attributes with those of `other`.
  void copyAttributes(const Element& other);
  /// The element's part of assigning a class whose tag and encoding stay: takes the attributes of `other`,
  /// and tag and encoding where this element is `empty` and nothing was done to it since it was moved from.
  void moveAttributes(Element& other, bool empty) noexcept;
  /// True as long as nothing was done to the element since it was moved from.
  bool isMovedFrom() const;
  /// From here on a document that is moved into this one leaves its tag and encoding alone.
  void settle();

 private:
  friend class Row;
  friend class CorvaneStream;

  detail::Label name_;
  detail::Label encoding_;
  detail::Shared<detail::AttributePart> attributes_;
};

}  // namespace corvane
