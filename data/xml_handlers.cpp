// What each handler does with an element at each level. An element that ends at a level has been opened
// there.
#include "data/xml_handlers.h"

#include <utility>

#include "data/detail/row_builder.h"
#include "data/detail/tags.h"

namespace corvane {

using detail::kIniplusTag;
using detail::kIniTag;
using detail::kListTag;
using detail::kRowTag;
using detail::kSectionTag;

SAXContentHandlerImpl::~SAXContentHandlerImpl() = default;

bool SAXContentHandlerImpl::startDocument() {
  return true;
}

bool SAXContentHandlerImpl::startElement(std::string_view, const AttributeMap&) {
  chars.clear();
  return true;
}

bool SAXContentHandlerImpl::endElement(std::string_view) {
  field.getValue().swap(chars);
  chars.clear();
  return true;
}

bool SAXContentHandlerImpl::characters(std::string_view piece) {
  chars += piece;
  return true;
}

void SAXContentHandlerImpl::reset(Element& element, std::string_view localName,
                                  const AttributeMap& attributes) {
  element.clear();
  element.setAttributes(attributes);
  element.setName(localName);
}

bool DocumentSAXHandler::startDocument() {
  if (!target_) return false;
  prepare();
  depth_ = 0;
  return true;
}

bool DocumentSAXHandler::startElement(std::string_view localName, const AttributeMap& attributes) {
  SAXContentHandlerImpl::startElement(localName, attributes);
  return target_ && open(++depth_, localName, attributes);
}

bool DocumentSAXHandler::endElement(std::string_view localName) {
  SAXContentHandlerImpl::endElement(localName);
  return target_ && close(depth_--, localName);
}

bool FieldSAXHandler::open(int level, std::string_view localName, const AttributeMap& attributes) {
  if (level != 1) return false;
  target_->setAttributes(attributes);
  target_->setName(localName);
  return true;
}

bool FieldSAXHandler::close(int level, std::string_view) {
  if (level != 1) return false;
  target_->setValue(field.getValue());
  return true;
}

bool RowSAXHandler::open(int level, std::string_view localName, const AttributeMap& attributes) {
  if (level > 2) return false;
  level == 1 ? reset(*target_, localName, attributes) : resetField(localName, attributes);
  return true;
}

bool RowSAXHandler::close(int level, std::string_view) {
  if (level == 2) target_->addField(field);
  return level <= 2;
}

RowsSAXHandler::RowsSAXHandler(Element* target)
    : DocumentSAXHandler(target), row_(std::make_unique<detail::RowBuilder>()) {}

RowsSAXHandler::~RowsSAXHandler() = default;

void RowsSAXHandler::openRow(std::string_view localName, const AttributeMap& attributes) {
  closedField();  // a row inside a row: the column before it is still to be named
  row_->reset(localName, attributes);
}

void RowsSAXHandler::openColumn(std::string_view localName, const AttributeMap& attributes) {
  const bool expected = attributes.empty() && row_->expects(localName);
  column_ = expected ? Column::kExpected : Column::kInField;
  if (!expected) resetField(localName, attributes);
}

void RowsSAXHandler::closeColumn() {
  if (column_ == Column::kExpected) {
    row_->addExpected(field.getValue());
    column_ = Column::kAdded;
  } else {
    row_->addField(closedField());
  }
}

Row RowsSAXHandler::closeRow() {
  closedField();
  return row_->build();
}

const Field& RowsSAXHandler::closedField() {
  if (column_ == Column::kAdded) {
    field.Element::clear();
    field.setName(row_->lastExpected());
    column_ = Column::kInField;
  }
  return field;
}

bool ListSAXHandler::open(int level, std::string_view localName, const AttributeMap& attributes) {
  switch (level) {
    case 1:
      reset(*target_, localName, attributes);
      return true;
    case 2:
      openRow(localName, attributes);
      return true;
    case 3:
      openColumn(localName, attributes);
      return true;
    default:
      return false;
  }
}

bool ListSAXHandler::close(int level, std::string_view) {
  if (level == 2) target_->addRow(closeRow());
  if (level == 3) closeColumn();
  return level <= 3;
}

bool CorvaneStreamSAXHandler::open(int level, std::string_view localName, const AttributeMap& attributes) {
  if (level > 4) return false;
  if (level == 1)
    reset(*target_, localName, attributes);
  else if (level == 2 && localName == kListTag)
    reset(list_, localName, attributes);
  else if (level <= 3 && localName == kRowTag)
    openRow(localName, attributes);
  else if (level == 2)
    resetField(localName, attributes);
  else
    openColumn(localName, attributes);
  return true;
}

bool CorvaneStreamSAXHandler::close(int level, std::string_view localName) {
  if (level == 2 && localName == kListTag)
    closeList();
  else if (level == 2 && localName == kRowTag)
    target_->addRow(closeRow());
  else if (level == 2)
    target_->addField(closedField());
  else if (level == 3 && localName == kRowTag)
    list_.addRow(closeRow());
  else if (level == 3 || level == 4)
    closeColumn();
  return level <= 4;
}

// The first row stays: a row inside a top-level row goes to the last list and has to have its columns.
void CorvaneStreamSAXHandler::closeList() {
  List first;
  if (list_.size() != 0) first.addRow(list_[0]);
  target_->addList(std::move(list_));
  list_ = std::move(first);
}

bool IniSAXHandler::open(int level, std::string_view localName, const AttributeMap& attributes) {
  if (level == 1 && localName == kIniTag)
    reset(*target_, localName, attributes);
  else if (level == 2 && localName == kSectionTag)
    reset(section_, localName, attributes);
  else if (level == 3)
    resetField(localName, attributes);
  else
    return false;
  return true;
}

bool IniSAXHandler::close(int level, std::string_view) {
  if (level == 2) target_->addSection(std::move(section_));
  if (level == 3) section_.addField(field);
  return level <= 3;
}

bool IniplusSAXHandler::open(int level, std::string_view localName, const AttributeMap& attributes) {
  if (level == 1 && localName == kIniplusTag)
    reset(*target_, localName, attributes);
  else if (level == 2 && localName == kSectionTag)
    reset(section_, localName, attributes);
  else if (level == 3 && localName == kRowTag)
    openRow(localName, attributes);
  else if (level == 4)
    openColumn(localName, attributes);
  else
    return false;
  return true;
}

bool IniplusSAXHandler::close(int level, std::string_view) {
  if (level == 2) target_->addSection(std::move(section_));
  if (level == 3) section_.addRow(closeRow());
  if (level == 4) closeColumn();
  return level <= 4;
}

}  // namespace corvane
