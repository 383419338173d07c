#include "data/exception.h"

#include <utility>

namespace corvane {

TException::TException(std::string key) : TException(std::move(key), std::string()) {}

TException::TException(std::string key, std::string reason) : reason_(std::move(reason)) {
  errors_.push_back(std::move(key));
  describe();
}

TException::TException(StringVector texts) : errors_(std::move(texts)) {
  describe();
}

TException::TException(std::initializer_list<std::string_view> texts) : errors_(texts.begin(), texts.end()) {
  describe();
}

TException::~TException() = default;

const char* TException::what() const noexcept {
  return description_.c_str();
}

StringVector TException::getErrors() const {
  return errors_;
}

void TException::addErrors(const StringVector& texts) {
  const std::size_t count = texts.size();  // `texts` may be this exception's own
  for (std::size_t at = 0; at < count; ++at) errors_.push_back(texts[at]);
  describe();
}

std::string TException::getMessage(std::string_view separator, bool trailing) const {
  return errors_.toString(separator, trailing);
}

const std::string& TException::getReason() const {
  return reason_;
}

// Plain joining: a log shows a backslash as the key or the host's text has it.
void TException::describe() {
  description_.clear();
  for (const std::string& error : errors_) {
    if (!description_.empty()) description_ += "; ";
    description_ += error;
  }
  if (!reason_.empty()) description_ += ": " + reason_;
}

TIOException::TIOException(std::string key, std::string detail)
    : TException(std::move(key)), detail_(std::move(detail)) {}

TIOException::~TIOException() = default;

const std::string& TIOException::getDetail() const {
  return detail_;
}

}  // namespace corvane
