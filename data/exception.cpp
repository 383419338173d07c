#include "data/exception.h"

#include <utility>

namespace corvane {

TException::TException(std::string key) {
  errors_.push_back(std::move(key));
}

TException::TException(StringVector texts) : errors_(std::move(texts)) {}

TException::TException(std::initializer_list<std::string_view> texts) : errors_(texts.begin(), texts.end()) {}

TException::~TException() = default;

StringVector TException::getErrors() const {
  return errors_;
}

void TException::addErrors(const StringVector& texts) {
  const std::size_t count = texts.size();  // `texts` may be this exception's own
  for (std::size_t at = 0; at < count; ++at) errors_.push_back(texts[at]);
}

std::string TException::getMessage(std::string_view separator, bool trailing) const {
  return errors_.toString(separator, trailing);
}

TIOException::TIOException(std::string key, std::string detail)
    : TException(std::move(key)), detail_(std::move(detail)) {}

TIOException::~TIOException() = default;

const std::string& TIOException::getDetail() const {
  return detail_;
}

}  // namespace corvane
