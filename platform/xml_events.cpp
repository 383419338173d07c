#include "platform/xml_events.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <limits>
#include <memory>
#include <new>
#include <set>
#include <utility>

#include "platform/code_page.h"

namespace norvik {
namespace {

// Stands between the parts of a name that expat reports; XML can't contain it.
constexpr char kSeparator = '\x01';
constexpr std::size_t kPiece = std::size_t{64} * 1024;

// Names are short: a loop over the bytes costs less than calls that look for the two ends.
std::string_view LocalName(const char* name) {
  const char* end = name;
  while (*end && *end != kSeparator) ++end;
  if (!*end) return {name, static_cast<std::size_t>(end - name)};
  const char* local = end + 1;
  const char* localEnd = std::strchr(local, kSeparator);
  return localEnd ? std::string_view(local, static_cast<std::size_t>(localEnd - local))
                  : std::string_view(local);
}

// Where the prolog's encoding stands between its quotes; a size of npos where there is none.
struct LabelPlace {
  std::size_t begin = 0;
  std::size_t size = std::string_view::npos;
};

LabelPlace FindLabel(std::string_view text) {
  constexpr std::string_view kOpen = "<?xml";
  constexpr std::string_view kName = "encoding";
  constexpr std::string_view kBlanks = " \t\r\n";
  if (!text.starts_with(kOpen) || text.find_first_of(kBlanks, kOpen.size()) != kOpen.size()) return {};
  const std::string_view prolog = text.substr(0, text.find("?>"));
  const std::size_t name = prolog.find(kName);
  if (name == std::string_view::npos) return {};
  const std::size_t equals = prolog.find_first_not_of(kBlanks, name + kName.size());
  if (equals == std::string_view::npos || prolog[equals] != '=') return {};
  const std::size_t quote = prolog.find_first_not_of(kBlanks, equals + 1);
  if (quote == std::string_view::npos || (prolog[quote] != '"' && prolog[quote] != '\'')) return {};
  const std::size_t end = prolog.find(prolog[quote], quote + 1);
  if (end == std::string_view::npos) return {};
  return {quote + 1, end - quote - 1};
}

bool IsLabel(std::string_view label) {
  const auto letter = [](char byte) { return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z'); };
  const auto inside = [&](char byte) {
    return letter(byte) || (byte >= '0' && byte <= '9') || byte == '.' || byte == '_' || byte == '-';
  };
  return !label.empty() && letter(label[0]) && std::all_of(label.begin(), label.end(), inside);
}

constexpr const char* kUndeclared = "reference to an entity that is not declared";

class Reading {
 public:
  Reading(std::string_view text, XmlEvents& events);
  XmlResult Run();

 private:
  struct Free {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };
  // Runs one event; nothing may be thrown through expat's own frames.
  template <class Event>
  static void Guarded(void* self, Event event);
  void Stop(const char* reason);
  static void Start(void* self, const char* name, const char** attributes);
  static void End(void* self, const char* name);
  static void Text(void* self, const char* text, int size);
  static void Entity(void* self, const char* name, int parameter, const char*, int, const char*, const char*,
                     const char*, const char*);
  static int Incomplete(void* self);
  static int External(XML_Parser parser, const char*, const char*, const char*, const char*);
  static void Skipped(void* self, const char*, int);
  bool RefersToUndeclared() const;
  bool PassLabel();
  bool Feed();
  XmlResult Failure() const;

  std::string_view text_;
  XmlEvents& events_;
  std::unique_ptr<XML_ParserStruct, Free> parser_;
  std::size_t at_ = 0;
  std::size_t fed_ = 0;  // bytes of UTF-8 given to expat
  unsigned entities_ = 0;
  std::set<std::string, std::less<>> declared_;  // names of entities
  bool incomplete_ = false;                      // declarations were not read
  bool stopped_ = false;
  const char* reason_ = nullptr;
  unsigned long line_ = 0;
  unsigned long column_ = 0;
  std::exception_ptr thrown_;
};

Reading::Reading(std::string_view text, XmlEvents& events)
    : text_(text), events_(events), parser_(XML_ParserCreateNS("UTF-8", kSeparator)) {
  if (!parser_) throw std::bad_alloc();
  XML_Parser parser = parser_.get();
  XML_SetUserData(parser, this);
  XML_SetReturnNSTriplet(parser, 1);
  XML_SetElementHandler(parser, Start, End);
  XML_SetCharacterDataHandler(parser, Text);
  XML_SetEntityDeclHandler(parser, Entity);
  XML_SetExternalEntityRefHandler(parser, External);
  XML_SetSkippedEntityHandler(parser, Skipped);
  XML_SetNotStandaloneHandler(parser, Incomplete);
}

XmlResult Reading::Run() {
  while (PassLabel() && Feed())
    if (at_ == text_.size()) return {.read = true, .reason = {}};
  if (thrown_) std::rethrow_exception(thrown_);
  return Failure();
}

// A prolog whose label is no name, such as the empty one of a document that was read without a prolog, is
// given to expat with a label that it takes.
bool Reading::PassLabel() {
  if (at_ != 0) return true;
  const LabelPlace label = FindLabel(text_);
  if (label.size == std::string_view::npos || IsLabel(text_.substr(label.begin, label.size))) return true;
  const std::string prolog = Utf8FromAnsi(text_.substr(0, label.begin)) + "UTF-8";
  at_ = label.begin + label.size;
  fed_ = prolog.size();
  return XML_Parse(parser_.get(), prolog.data(), static_cast<int>(fed_), 0) == XML_STATUS_OK;
}

// A token that doesn't end within a piece is read again from its start with the next one: so pieces grow with
// it, and the cost stays in proportion to the text.
bool Reading::Feed() {
  const XML_Index done = XML_GetCurrentByteIndex(parser_.get());
  const std::size_t pending = done < 0 ? fed_ : fed_ - static_cast<std::size_t>(done);
  constexpr std::size_t kMaxPiece = std::numeric_limits<int>::max() / 8;
  const std::size_t piece = std::min({std::max(kPiece, pending), kMaxPiece, text_.size() - at_});
  void* buffer = XML_GetBuffer(parser_.get(), static_cast<int>(3 * (piece + 1)));
  if (!buffer) return false;
  const std::size_t size = DecodeToUtf8(text_, at_, piece, static_cast<char*>(buffer));
  fed_ += size;
  return XML_ParseBuffer(parser_.get(), static_cast<int>(size), at_ == text_.size()) == XML_STATUS_OK;
}

XmlResult Reading::Failure() const {
  XML_Parser parser = parser_.get();
  XmlResult result;
  result.refused = stopped_ && !reason_;
  result.line = stopped_ ? line_ : XML_GetCurrentLineNumber(parser);
  result.column = stopped_ ? column_ : XML_GetCurrentColumnNumber(parser) + 1;
  result.reason = result.refused ? "element not expected here"
                  : reason_      ? reason_
                                 : XML_ErrorString(XML_GetErrorCode(parser));
  return result;
}

template <class Event>
void Reading::Guarded(void* self, Event event) {
  auto& reading = *static_cast<Reading*>(self);
  if (reading.stopped_) return;
  try {
    if (!event(reading)) reading.Stop(nullptr);
  } catch (...) {
    reading.thrown_ = std::current_exception();
    reading.Stop(nullptr);
  }
}

void Reading::Stop(const char* reason) {
  if (stopped_) return;
  stopped_ = true;
  reason_ = reason;
  line_ = XML_GetCurrentLineNumber(parser_.get());
  column_ = XML_GetCurrentColumnNumber(parser_.get()) + 1;
  XML_StopParser(parser_.get(), XML_FALSE);
}

void Reading::Start(void* self, const char* name, const char** attributes) {
  auto& root = *static_cast<Reading*>(self);
  if (std::exchange(root.incomplete_, false) && root.RefersToUndeclared()) root.Stop(kUndeclared);
  Guarded(self, [&](Reading& reading) {
    return reading.events_.StartElement(LocalName(name), XmlAttributes(attributes));
  });
}

void Reading::End(void* self, const char* name) {
  Guarded(self, [&](Reading& reading) { return reading.events_.EndElement(LocalName(name)); });
}

void Reading::Text(void* self, const char* text, int size) {
  Guarded(self, [&](Reading& reading) {
    return reading.events_.Characters(std::string_view(text, static_cast<std::size_t>(size)));
  });
}

void Reading::Entity(void* self, const char* name, int parameter, const char*, int, const char*, const char*,
                     const char*, const char*) {
  auto& reading = *static_cast<Reading*>(self);
  if (++reading.entities_ > kMaxEntities) return reading.Stop("too many entity declarations");
  if (parameter == 0) reading.declared_.insert(name);
}

int Reading::Incomplete(void* self) {
  static_cast<Reading*>(self)->incomplete_ = true;
  return XML_STATUS_OK;
}

int Reading::External(XML_Parser parser, const char*, const char*, const char*, const char*) {
  static_cast<Reading*>(XML_GetUserData(parser))->Stop("reference to an external entity");
  return XML_STATUS_ERROR;
}

void Reading::Skipped(void* self, const char*, int) {
  static_cast<Reading*>(self)->Stop(kUndeclared);
}

// Where declarations were not read, expat drops a reference in an attribute's value and reports nothing. This
// looks at every reference, wherever in the text it stands.
bool Reading::RefersToUndeclared() const {
  constexpr std::array<std::string_view, 5> kPredefined{"lt", "gt", "amp", "apos", "quot"};
  for (std::size_t at = text_.find('&'); at != std::string_view::npos; at = text_.find('&', at + 1)) {
    const std::size_t end = text_.find_first_of("&<>;#'\" \t\r\n", at + 1);
    if (end == std::string_view::npos || text_[end] != ';') continue;
    const std::string name = Utf8FromAnsi(text_.substr(at + 1, end - at - 1));
    if (std::find(kPredefined.begin(), kPredefined.end(), name) == kPredefined.end() &&
        !declared_.contains(name))
      return true;
  }
  return false;
}

bool IsNameByte(char byte, bool first) {
  const bool letter = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || byte == '_';
  return letter || (!first && ((byte >= '0' && byte <= '9') || byte == '-' || byte == '.'));
}

bool IsPlainName(std::string_view name) {
  if (name.empty() || !IsNameByte(name[0], true)) return false;
  return std::all_of(name.begin() + 1, name.end(), [](char byte) { return IsNameByte(byte, false); });
}

// Asks expat, whose tables decide what the reader takes.
bool ExpatTakesName(std::string_view name) {
  const std::string document = "<" + std::string(name) + "/>";
  std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                      &XML_ParserFree);
  if (!parser) throw std::bad_alloc();
  return XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), 1) == XML_STATUS_OK;
}

}  // namespace

XmlEvents::~XmlEvents() = default;

XmlAttributes::XmlAttributes(const char** pairs) : pairs_(pairs) {
  while (pairs_[2 * size_]) ++size_;
}

std::string_view XmlAttributes::QualifiedName(std::size_t index, std::string& space) const {
  const char* name = pairs_[2 * index];
  const char* uriEnd = std::strchr(name, kSeparator);
  if (!uriEnd) return name;
  const std::string_view local = LocalName(name);
  const char* localEnd = local.data() + local.size();
  if (*localEnd != kSeparator) return local;
  space.assign(localEnd + 1).append(1, ':').append(local);
  return space;
}

XmlResult ReadXml(std::string_view text, XmlEvents& events) {
  return Reading(text, events).Run();
}

bool IsXmlName(std::string_view name) {
  const std::size_t colon = name.find(':');
  if (colon != std::string_view::npos)
    return IsXmlName(name.substr(0, colon)) && name.find(':', colon + 1) == std::string_view::npos &&
           IsXmlName(name.substr(colon + 1));
  if (IsPlainName(name)) return true;
  constexpr std::string_view kMarkup = " \t\r\n/<>='\"&";
  const bool foreign = std::any_of(name.begin(), name.end(), [](char byte) { return byte < 0; });
  return foreign && name.find_first_of(kMarkup) == std::string_view::npos && ExpatTakesName(name);
}

}  // namespace norvik
