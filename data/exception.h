// The exceptions of the whole system.
#pragma once

#include <exception>
#include <initializer_list>
#include <string>
#include <string_view>

#include "data/string_vector.h"

namespace corvane {

// A failure: the keys of its texts ("ET10016"), oldest first, as a rule one; an entry may be a line of ready
// text.
class TException : public std::exception {
 public:
  explicit TException(std::string key);
  explicit TException(StringVector texts);
  // The same from texts in braces.
  explicit TException(std::initializer_list<std::string_view> texts);
  TException(const TException&) = default;
  TException& operator=(const TException&) = default;
  ~TException() override;

  StringVector getErrors() const;
  // Appends each entry of `texts`.
  void addErrors(const StringVector& texts);
  // The entries joined as StringVector::toString joins them.
  std::string getMessage(std::string_view separator, bool trailing = false) const;

 private:
  StringVector errors_;
};

// A failure with a free text that goes with the key, such as a host library's own words.
class TIOException : public TException {
 public:
  TIOException(std::string key, std::string detail);
  TIOException(const TIOException&) = default;
  TIOException& operator=(const TIOException&) = default;
  ~TIOException() override;

  const std::string& getDetail() const;

 private:
  std::string detail_;
};

}  // namespace corvane
