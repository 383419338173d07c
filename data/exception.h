// The exceptions of the whole system, from the reading of a document to a host that refuses.
//
// A failure is keys that the host's error library turns into a message for the user. Why a text was refused
// is for whoever reads a log: it stands in what() and never among the keys.
#pragma once

#include <exception>
#include <initializer_list>
#include <string>
#include <string_view>

#include "data/export.h"
#include "data/string_vector.h"

namespace corvane {

/// A failure: the keys of its texts ("ET10016"), oldest first, as a rule one; an entry may be a line of ready
/// text.
class CORVANE_EXPORT TException : public std::exception {
 public:
  /// A failure with one key.
  explicit TException(std::string key);
  /// A failure with one key and its reason, for a person: place and cause, as in "line 3, column 41:
  /// mismatched tag".
  TException(std::string key, std::string reason);
  /// A failure with all of `texts`.
  explicit TException(StringVector texts);
  /// The same from texts in braces.
  explicit TException(std::initializer_list<std::string_view> texts);
  /// Copies keys and reason.
  TException(const TException&) = default;
  /// Replaces keys and reason.
  TException& operator=(const TException&) = default;
  ~TException() override;

  /// The keys joined with "; ", and the reason after them where there is one: "ET10016: line 3, column 41:
  /// mismatched tag". Valid until the exception changes.
  const char* what() const noexcept override;

  /// Returns a copy of the keys.
  StringVector getErrors() const;
  /// Appends each entry of `texts` to the keys.
  void addErrors(const StringVector& texts);
  /// Returns the keys joined as StringVector::toString joins them.
  std::string getMessage(std::string_view separator, bool trailing = false) const;
  /// Why a text was refused, for a person; empty where nothing is known beyond the keys.
  const std::string& getReason() const;

 private:
  void describe();

  StringVector errors_;
  std::string reason_;
  std::string description_;  // what() as a whole
};

/// A failure with a free text that goes with the key, such as a host library's own words.
class CORVANE_EXPORT TIOException : public TException {
 public:
  /// A failure with one key and a free text.
  TIOException(std::string key, std::string detail);
  /// Copies all.
  TIOException(const TIOException&) = default;
  /// Replaces all.
  TIOException& operator=(const TIOException&) = default;
  ~TIOException() override;

  /// The free text, valid until the exception changes.
  const std::string& getDetail() const;

 private:
  std::string detail_;
};

}  // namespace corvane
