// What holds for each class of documents and every text, in a double-byte code page, in one with pairs that
// are no characters, and in UTF-8: the text is read or refused with the class's own keys; what was read is
// written, or refused with the class's own key; what was written is read again, is the same document, and is
// written as the same text.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "data/corvane.h"
#include "fuzz/target.h"
#include "platform/code_page.h"

namespace fuzz {

using Keys = std::initializer_list<std::string_view>;

/// Runs `step`; false if it throws a TException with one of `keys`.
template <class Step>
bool Passes(Keys keys, Step step) {
  try {
    step();
    return true;
  } catch (const corvane::TException& failure) {
    const auto errors = failure.getErrors();
    Require(errors.size() == 1 && std::count(keys.begin(), keys.end(), errors[0]) == 1,
            "a failure has one of the class's keys");
    return false;
  }
}

/// Parts of a document as a text in which no two documents are alike, but for attributes without a value,
/// which have no text form.
inline void Show(std::string_view text, std::string& out) {
  out.append(std::to_string(text.size())).append(1, ':').append(text);
}

inline void ShowElement(const corvane::Element& element, std::string& out) {
  Show(element.name(), out += '<');
  for (const auto& [name, value] : element.attributes()) {
    if (value.empty()) continue;
    Show(name, out);
    Show(value, out);
  }
}

inline void Show(const corvane::Field& field, std::string& out) {
  Show(field.name(), out += '<');
  Show(field.getValue(), out);
}

inline void Show(const corvane::Row& row, std::string& out) {
  ShowElement(row, out);
  for (const auto& [key, field] : row) {
    Show(key, out);
    Show(field, out);
  }
}

inline void Show(const corvane::List& list, std::string& out) {
  ShowElement(list, out);
  for (const corvane::Row& row : list) Show(row, out);
}

template <class Sections>
void ShowSections(const Sections& document, std::string& out) {
  ShowElement(document, out);
  for (const auto& [name, section] : document) {
    Show(name, out);
    Show(section, out);
  }
}

inline void Show(const corvane::Ini& ini, std::string& out) {
  ShowSections(ini, out);
}

inline void Show(const corvane::Iniplus& iniplus, std::string& out) {
  ShowSections(iniplus, out);
}

inline void Show(const corvane::CorvaneStream& stream, std::string& out) {
  ShowElement(stream, out);
  for (const auto& [key, field] : stream.getFields()) {
    Show(key, out);
    Show(field, out);
  }
  for (int at = 0; at < stream.getRowCount(); ++at) Show(stream.getRow(at), out);
  for (auto list = stream.listsBegin(); list != stream.listsEnd(); ++list) {
    Show(list->first, out);
    Show(list->second, out);
  }
}

/// All of a document as a text.
template <class Document>
std::string Shown(const Document& document) {
  std::string out;
  Show(document.encoding(), out);
  Show(document, out);
  return out;
}

/// What a refused text has left in a document is a document, too.
template <class Document>
void WriteRest(std::string_view text, Keys readKeys, Keys writeKeys) {
  if constexpr (requires(Document document) { document.fromString(text); }) {
    Document rest;
    Passes(readKeys, [&] { rest.fromString(text); });
    Passes(writeKeys, [&] { (void)rest.toString(); });
  }
}

/// True where a document that was written is read again as the same kinds of elements.
inline bool TagsDecide(const corvane::Element&) {
  return true;
}

/// In a stream the tag decides between a field and a row or a list, so that no field of those names is read
/// again as one; mixed content can make them.
inline bool TagsDecide(const corvane::CorvaneStream& stream) {
  const corvane::MapField fields = stream.getFields();
  if (fields.contains("row") || fields.contains("list")) return false;
  for (int at = 0; at < stream.getRowCount(); ++at)
    if (stream.getRow(at).hasField("row")) return false;
  return true;
}

/// Reads, writes and reads again, in three code pages; ends the run where the rules of this file do not hold.
template <class Document>
void RoundTrip(std::string_view text, Keys readKeys, Keys writeKeys) {
  for (const unsigned codePage : {936U, 949U, 65001U}) {
    norvik::SetAnsiCodePage(codePage);
    std::optional<Document> first;
    if (!Passes(readKeys, [&] { first.emplace(text); })) {
      WriteRest<Document>(text, readKeys, writeKeys);
      continue;
    }
    // The label is scanned for in the bytes, which ends at a blank.
    if (first->encoding().find(' ') != std::string::npos) first->setEncoding("UTF-8");
    std::string written;
    if (!Passes(writeKeys, [&] { written = first->toString(); }) || !TagsDecide(*first)) continue;
    std::optional<Document> second;
    Require(Passes(readKeys, [&] { second.emplace(written); }), "what was written is read");
    Require(Shown(*first) == Shown(*second), "what was written and read is the same document");
    Require(second->toString() == written, "the same document has the same text");
  }
}

}  // namespace fuzz
