// The root of all documents.
#pragma once

#include <string>
#include <string_view>

#include "data/shared.h"

namespace corvane {

// An XML element in memory: a tag, attributes in byte order of their names, and the label of the encoding
// that its text form declares, "UTF-8" by default. The label never drives a conversion. A text that is read
// into a document must not be one of the document's own values.
//
// Documents are values; copying or moving one into a new object takes all of it. Assigning one to a row,
// list, stream, section or document of sections leaves the target's tag and label alone, by copy or by move.
// A document that was moved from is empty, keeps its own tag and label, and serves like any other. The one
// difference: as long as nothing has been done to it since, a document that is moved into it comes whole,
// with tag and label. So std::swap, sorting, rotating and inserting, which move documents into the places of
// those that they have moved away, keep each document together; erasing from a vector moves into places that
// still hold theirs, and so leaves the tags where they are.
class Element {
 public:
  virtual ~Element();

  // The XML text, in the ANSI code page. Throws TException with the class's own key where there is none.
  virtual std::string toString() const = 0;
  // Empties the attributes; tag and encoding stay.
  virtual void clear();

  std::string getName() const;
  void setName(std::string_view name);
  std::string getEncoding() const;
  void setEncoding(std::string_view encoding);

  // The value of an attribute. A missing one is made with an empty value, which never shows in the text form.
  std::string getAttribute(std::string_view key);
  void setAttribute(std::string_view key, std::string_view value);
  AttributeMap getAttributes() const;
  // Sets each attribute of `more`; the others stay.
  void setAttributes(const AttributeMap& more);

  // The same by reference, for reading; they stay valid until the element changes.
  const std::string& name() const { return name_.text(); }
  const std::string& encoding() const { return encoding_.text(); }
  const AttributeMap& attributes() const;

  // True where there are attributes or an encoding other than the default one.
  bool hasExtra() const;

 protected:
  Element();
  explicit Element(const Label& name);
  Element(const Element& other);
  Element(Element&& other) noexcept;
  Element& operator=(const Element& other);
  Element& operator=(Element&& other) noexcept;

  // Takes the attributes of `other`, in place of its own.
  void copyAttributes(const Element& other);
  // The element's part of assigning a class whose tag and encoding stay: takes the attributes of `other`, and
  // tag and encoding where this element is `empty` and nothing was done to it since it was moved from.
  void moveAttributes(Element& other, bool empty) noexcept;
  bool isMovedFrom() const;
  // From here on a document that is moved into this one leaves its tag and encoding alone.
  void settle();

 private:
  friend class Row;
  friend class CorvaneStream;

  Label name_;
  Label encoding_;
  Shared<AttributePart> attributes_;
};

}  // namespace corvane
