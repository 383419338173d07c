// The content handlers: one for each class of documents, which fills a document from the events of a reading.
//
// For the documents themselves (data/text_form.cpp) and for callers of parseXml with a handler of their own,
// which derive from SAXContentHandlerImpl. Which element may stand at which level is decided here and nowhere
// else.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "data/corvane_stream.h"
#include "data/export.h"
#include "data/field.h"
#include "data/ini.h"
#include "data/iniplus.h"
#include "data/list.h"
#include "data/row.h"

namespace corvane {

/// Takes the events of a reading as narrow text. An event returns false to refuse its element, which ends
/// the reading; it may also throw. A handler serves one reading at a time and does not own its target.
class CORVANE_EXPORT SAXContentHandlerImpl {
 public:
  /// A handler that takes every text and keeps nothing of it.
  SAXContentHandlerImpl() = default;
  /// A handler is not copied.
  SAXContentHandlerImpl(const SAXContentHandlerImpl&) = delete;
  /// A handler is not assigned to.
  SAXContentHandlerImpl& operator=(const SAXContentHandlerImpl&) = delete;
  virtual ~SAXContentHandlerImpl();

  /// The reading begins.
  virtual bool startDocument();
  /// An element begins: its tag without the prefix, and its attributes by qualified name without namespace
  /// declarations.
  virtual bool startElement(std::string_view localName, const AttributeMap& attributes);
  /// An element has ended.
  virtual bool endElement(std::string_view localName);
  /// A piece of character data.
  virtual bool characters(std::string_view piece);

 protected:
  /// Empties `element`, then gives it these attributes and this tag.
  static void reset(Element& element, std::string_view localName, const AttributeMap& attributes);
  /// Begins `field` with this tag and these attributes.
  void resetField(std::string_view localName, const AttributeMap& attributes) {
    reset(field, localName, attributes);
  }

  /// The field that is being read.
  Field field;
  /// The character data since the last element began or ended.
  std::string chars;
};

/// The handler of one class of documents: it counts the open elements, the root being level 1, and fills its
/// target. A null target is refused.
class CORVANE_EXPORT DocumentSAXHandler : public SAXContentHandlerImpl {
 public:
  /// Makes the target ready.
  bool startDocument() override;
  /// Opens the element at its level.
  bool startElement(std::string_view localName, const AttributeMap& attributes) override;
  /// Closes the element at its level.
  bool endElement(std::string_view localName) override;

 protected:
  /// `target` stays the caller's and outlives the reading.
  explicit DocumentSAXHandler(Element* target) : target_(target) {}
  /// An element begins at `level`; false where it is not expected there.
  virtual bool open(int level, std::string_view localName, const AttributeMap& attributes) = 0;
  /// The element that was opened at `level` has ended; false where it is not expected there.
  virtual bool close(int level, std::string_view localName) = 0;
  /// Brings the target into the state before anything is read.
  virtual void prepare() { target_->clear(); }

 private:
  Element* target_;
  int depth_ = 0;
};

/// Reads a field: one element without elements in it.
class CORVANE_EXPORT FieldSAXHandler : public DocumentSAXHandler {
 public:
  /// Fills `target`, which stays the caller's; null is refused.
  explicit FieldSAXHandler(Field* target) : DocumentSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;
  /// The field keeps what it has until its element begins.
  void prepare() override {}

 private:
  Field* target_;
};

/// Reads a row: an element of fields.
class CORVANE_EXPORT RowSAXHandler : public DocumentSAXHandler {
 public:
  /// Fills `target`, which stays the caller's; null is refused.
  explicit RowSAXHandler(Row* target) : DocumentSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  Row* target_;
};

/// The handler of a class of documents that holds rows. A column that the row before had at the same place
/// goes to the row without passing through `field`, which learns its name only where that is asked for.
class CORVANE_EXPORT RowsSAXHandler : public DocumentSAXHandler {
 public:
  ~RowsSAXHandler() override;

 protected:
  /// As DocumentSAXHandler's.
  explicit RowsSAXHandler(Element* target);
  /// Begins a row.
  void openRow(std::string_view localName, const AttributeMap& attributes);
  /// Begins a column of the row.
  void openColumn(std::string_view localName, const AttributeMap& attributes);
  /// Adds the element that has ended to the row.
  void closeColumn();
  /// Ends the row and returns it.
  Row closeRow();
  /// The element that has ended, by name and value.
  const Field& closedField();

 private:
  enum class Column : unsigned char { kInField, kExpected, kAdded };

  std::unique_ptr<detail::RowBuilder> row_;
  Column column_ = Column::kInField;  // kAdded: ended and added, its name still missing in `field`
};

/// Reads a list: an element of rows.
class CORVANE_EXPORT ListSAXHandler : public RowsSAXHandler {
 public:
  /// Fills `target`, which stays the caller's; null is refused.
  explicit ListSAXHandler(List* target) : RowsSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  List* target_;
};

/// Reads a stream: fields, rows and lists in any order.
class CORVANE_EXPORT CorvaneStreamSAXHandler : public RowsSAXHandler {
 public:
  /// Fills `target`, which stays the caller's; null is refused.
  explicit CorvaneStreamSAXHandler(CorvaneStream* target) : RowsSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  /// Stores the list that has ended.
  void closeList();

  CorvaneStream* target_;
  List list_;
};

/// Reads an "ini" document: sections of fields.
class CORVANE_EXPORT IniSAXHandler : public DocumentSAXHandler {
 public:
  /// Fills `target`, which stays the caller's; null is refused.
  explicit IniSAXHandler(Ini* target) : DocumentSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  Ini* target_;
  IniSection section_;
};

/// Reads an "iniplus" document: sections of rows.
class CORVANE_EXPORT IniplusSAXHandler : public RowsSAXHandler {
 public:
  /// Fills `target`, which stays the caller's; null is refused.
  explicit IniplusSAXHandler(Iniplus* target) : RowsSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  Iniplus* target_;
  IniplusSection section_;
};

}  // namespace corvane
