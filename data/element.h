// The root of all documents.
#pragma once

#include <string>
#include <string_view>

#include "data/shared.h"

namespace corvane {

// An XML element in memory: a tag, attributes in byte order of their names, and the label of the encoding
// that its text form declares, "UTF-8" by default. The label never drives a conversion. Documents are values;
// copying one copies all, while assignment between rows, lists, streams and sections leaves the target's tag
// and label alone. A text that is read into a document must not be one of the document's own values.
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

  // True where there is something beside tag and the default encoding.
  bool hasExtra() const;

 protected:
  Element();
  explicit Element(const Label& name);
  Element(const Element&) = default;
  Element(Element&&) noexcept = default;
  Element& operator=(const Element&) = default;
  Element& operator=(Element&&) noexcept = default;

  // Takes the attributes of `other`, in place of its own.
  void copyAttributes(const Element& other) { attributes_ = other.attributes_; }
  void swapElement(Element& other) noexcept;

 private:
  friend class Row;
  friend class CorvaneStream;

  Label name_;
  Label encoding_;
  Shared<AttributePart> attributes_;
};

}  // namespace corvane
