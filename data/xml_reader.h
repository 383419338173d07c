// Reading documents from their XML text.
//
// parseXml joins a text to a content handler; each class of documents has its handler. What a failure is in
// the reader's own words stays here: the classes raise their own keys.
#pragma once

#include <string>
#include <string_view>

#include "data/corvane_stream.h"
#include "data/field.h"
#include "data/ini.h"
#include "data/iniplus.h"
#include "data/list.h"
#include "data/row.h"
#include "data/row_builder.h"

namespace corvane {

// Takes the events of a reading as narrow text. An event returns false to refuse what it is told, which ends
// the reading; it may also throw. A handler serves one reading at a time and does not own its target.
class SAXContentHandlerImpl {
 public:
  SAXContentHandlerImpl() = default;
  SAXContentHandlerImpl(const SAXContentHandlerImpl&) = delete;
  SAXContentHandlerImpl& operator=(const SAXContentHandlerImpl&) = delete;
  virtual ~SAXContentHandlerImpl();

  virtual bool startDocument();
  // A tag without its prefix, and the attributes by qualified name without namespace declarations.
  virtual bool startElement(std::string_view localName, const AttributeMap& attributes);
  virtual bool endElement(std::string_view localName);
  // A piece of character data.
  virtual bool characters(std::string_view piece);

 protected:
  // Empties `element`, then gives it these attributes and this tag.
  static void reset(Element& element, std::string_view localName, const AttributeMap& attributes);
  void resetField(std::string_view localName, const AttributeMap& attributes) {
    reset(field, localName, attributes);
  }

  Field field;        // the field being read
  std::string chars;  // character data since the last element boundary
};

// The handler of one class of documents: it counts the open elements, the root being level 1, and fills its
// target. A null target is refused.
class DocumentSAXHandler : public SAXContentHandlerImpl {
 public:
  bool startDocument() override;
  bool startElement(std::string_view localName, const AttributeMap& attributes) override;
  bool endElement(std::string_view localName) override;

 protected:
  explicit DocumentSAXHandler(Element* target) : target_(target) {}
  // An element begins or has ended at `level`; false where it is not expected there.
  virtual bool open(int level, std::string_view localName, const AttributeMap& attributes) = 0;
  virtual bool close(int level, std::string_view localName) = 0;
  // The target as it is before anything is read.
  virtual void prepare() { target_->clear(); }

 private:
  Element* target_;
  int depth_ = 0;
};

class FieldSAXHandler : public DocumentSAXHandler {
 public:
  explicit FieldSAXHandler(Field* target) : DocumentSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;
  void prepare() override {}

 private:
  Field* target_;
};

class RowSAXHandler : public DocumentSAXHandler {
 public:
  explicit RowSAXHandler(Row* target) : DocumentSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  Row* target_;
};

// The handler of a class of documents that holds rows. A column that the row before had at the same place
// goes to the row without passing through `field`, which learns its name only where that is asked for.
class RowsSAXHandler : public DocumentSAXHandler {
 protected:
  using DocumentSAXHandler::DocumentSAXHandler;
  void openRow(std::string_view localName, const AttributeMap& attributes) {
    closedField();  // a row inside a row: the column before it is still to be named
    row_.reset(localName, attributes);
  }
  void openColumn(std::string_view localName, const AttributeMap& attributes);
  // Adds the element that has ended to the row.
  void closeColumn();
  Row closeRow();
  // The element that has ended, by name and value.
  const Field& closedField();

 private:
  enum class Column : unsigned char { kInField, kExpected, kAdded };

  RowBuilder row_;
  Column column_ = Column::kInField;  // kAdded: ended and added, its name still missing in `field`
};

class ListSAXHandler : public RowsSAXHandler {
 public:
  explicit ListSAXHandler(List* target) : RowsSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  List* target_;
};

class CorvaneStreamSAXHandler : public RowsSAXHandler {
 public:
  explicit CorvaneStreamSAXHandler(CorvaneStream* target) : RowsSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  void closeList();

  CorvaneStream* target_;
  List list_;
};

class IniSAXHandler : public DocumentSAXHandler {
 public:
  explicit IniSAXHandler(Ini* target) : DocumentSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  Ini* target_;
  IniSection section_;
};

class IniplusSAXHandler : public RowsSAXHandler {
 public:
  explicit IniplusSAXHandler(Iniplus* target) : RowsSAXHandler(target), target_(target) {}

 protected:
  bool open(int level, std::string_view localName, const AttributeMap& attributes) override;
  bool close(int level, std::string_view localName) override;

 private:
  Iniplus* target_;
  IniplusSection section_;
};

// What became of a reading: the key, and for a person the place in the text and the reason.
struct ParseResult {
  std::string
      key;  // "ET10078" for an empty text, "ET10079" for one that is refused, an event's own key; "" if read
  unsigned long line = 0;    // from 1; 0 where no place is known
  unsigned long column = 0;  // from 1, in characters
  std::string reason;

  explicit operator bool() const { return key.empty(); }
};

// Reads `text`, bytes in the ANSI code page, into the handler. What the handler stored before a failure
// stays.
ParseResult parseXml(std::string_view text, SAXContentHandlerImpl& handler);

// The same; on failure false, and `error` is the key.
bool parseXml(std::string_view text, SAXContentHandlerImpl* handler, std::string& error);

// The value of `encoding` in the prolog of `text`, or "". A scan of the bytes: single quotes are not removed.
std::string xmlEncoding(std::string_view text);

}  // namespace corvane
