#include "toolkit/sys_utils.h"

#include <charconv>
#include <optional>
#include <string_view>

namespace {

// std::from_chars knows no plus sign, takes "inf" and "nan", and stops where the number ends: the rest is
// here.
template <class Number>
std::optional<Number> WholeNumber(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  constexpr std::string_view kNumberCharacters = "+-.0123456789eE";
  Number value{};
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end ||
      text.find_first_not_of(kNumberCharacters) != std::string_view::npos) {
    return std::nullopt;
  }
  return value;
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

}  // namespace

int StrToInt(const std::string& text) {
  const auto value = WholeNumber<int>(WithoutLeadingBlanks(text));
  if (!value) throw EConvertError("'" + text + "' is not a valid integer value");
  return *value;
}

int StrToIntDef(const std::string& text, int otherwise) noexcept {
  return WholeNumber<int>(WithoutLeadingBlanks(text)).value_or(otherwise);
}

double StrToFloat(const std::string& text) {
  std::string_view number = WithoutLeadingBlanks(text);
  number = number.substr(0, number.find_last_not_of(' ') + 1);
  const auto value = WholeNumber<double>(number);
  if (!value) throw EConvertError("'" + text + "' is not a valid floating point value");
  return *value;
}

std::string FloatToStr(double value) {
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15).ptr;
  return {buffer, end};
}
