#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace demohost {

// What the bank turns down, or the host can't do: a key of refusals.h, and the detail that goes with it
// (UTF-8, may be empty).
class Refused : public std::runtime_error {
 public:
  explicit Refused(std::string_view key, std::string detail = {})
      : std::runtime_error(std::string(key)), detail_(std::move(detail)) {}

  std::string Key() const { return what(); }
  const std::string& Detail() const { return detail_; }

  // The key, and before it the detail as a line of its own where there is one: an error dialog shows the last
  // line at once and the others on request.
  std::string Lines() const { return detail_.empty() ? Key() : detail_ + "\r\n" + Key(); }

 private:
  std::string detail_;
};

}  // namespace demohost
