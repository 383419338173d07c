#include "data/xml_reader.h"

#include "data/detail/keys.h"
#include "data/exception.h"
#include "data/string_functions.h"
#include "data/xml_handlers.h"
#include "platform/code_page.h"
#include "platform/xml_events.h"

namespace corvane {
namespace {

// Turns the reader's events into narrow text for a handler.
class NarrowEvents : public norvik::XmlEvents {
 public:
  explicit NarrowEvents(SAXContentHandlerImpl& handler) : handler_(handler) {}

  bool StartElement(std::string_view localName, const norvik::XmlAttributes& attributes) override {
    if (!attributes_.empty()) attributes_.clear();
    for (std::size_t at = 0; at < attributes.Size(); ++at) {
      const std::string_view name = attributes.QualifiedName(at, space_);
      attributes_[norvik::AnsiFromUtf8(name)] = norvik::AnsiFromUtf8(attributes.Value(at));
    }
    return Guarded([&] { return handler_.startElement(Narrow(localName), attributes_); });
  }
  bool EndElement(std::string_view localName) override {
    return Guarded([&] { return handler_.endElement(Narrow(localName)); });
  }
  bool Characters(std::string_view piece) override {
    return Guarded([&] { return handler_.characters(Narrow(piece)); });
  }
  // The key of what an event threw; "" if none did.
  const std::string& Key() const { return key_; }

 private:
  // A failure of the document ends the reading as a refusal does, so that its place is known.
  template <class Event>
  bool Guarded(Event event) {
    try {
      return event();
    } catch (const TException& failure) {
      key_ = failure.getMessage("\r\n");
      return false;
    }
  }
  std::string_view Narrow(std::string_view text) {
    if (norvik::AsciiRun(text) == text.size()) return text;
    narrow_.clear();
    norvik::AppendAnsiFromUtf8(text, narrow_);
    return narrow_;
  }

  SAXContentHandlerImpl& handler_;
  AttributeMap attributes_;
  std::string space_;
  std::string narrow_;
  std::string key_;
};

}  // namespace

ParseResult parseXml(std::string_view text, SAXContentHandlerImpl& handler) {
  if (text.empty()) return {.key = detail::key::kEmptyText, .reason = "the text is empty"};
  if (!handler.startDocument())
    return {.key = detail::key::kRefusedText, .reason = "the handler takes no document"};
  NarrowEvents events(handler);
  norvik::XmlResult result = norvik::ReadXml(text, events);
  if (result.read) return {};
  if (!events.Key().empty())
    return {events.Key(), result.line, result.column, "the document refuses what was read"};
  return {detail::key::kRefusedText, result.line, result.column, std::move(result.reason)};
}

bool parseXml(std::string_view text, SAXContentHandlerImpl* handler, std::string& error) {
  const ParseResult result = handler ? parseXml(text, *handler)
                                     : ParseResult{.key = detail::key::kNoHandler, .reason = "no handler"};
  if (!result) error = result.key;
  return static_cast<bool>(result);
}

std::string ParseResult::describe() const {
  std::string text = reason;
  if (line != 0) text = "line " + std::to_string(line) + ", column " + std::to_string(column) + ": " + reason;
  const bool fromEvent = !key.empty() && key != detail::key::kEmptyText && key != detail::key::kRefusedText;
  return fromEvent ? text + " (" + key + ")" : text;
}

std::string xmlEncoding(std::string_view text) {
  constexpr std::string_view kLabel = "encoding=";
  const std::size_t end = text.find("?>");
  const std::size_t last = end == std::string_view::npos ? text.size() : end;
  const std::string header = trim(last < 5 ? std::string_view() : text.substr(5, last - 5));
  const std::size_t found = header.find(kLabel);
  if (found == std::string::npos || found == 0) return {};
  std::string value = header.substr(found + kLabel.size());
  const std::size_t blank = value.find(' ');
  if (blank != std::string::npos && blank > 0) value.resize(blank);
  if (value.starts_with('"')) value.erase(0, 1);
  if (value.ends_with('"')) value.pop_back();
  return value;
}

}  // namespace corvane
