#pragma once

#include <stdexcept>
#include <string>

/// The root of the toolkit's own failures; what() is a text for the user and may be empty.
class Exception : public std::runtime_error {
 public:
  explicit Exception(const std::string& message) : std::runtime_error(message) {}
};

/// A text that is no value of the kind asked for.
class EConvertError : public Exception {
 public:
  using Exception::Exception;
};

/// A decimal 32-bit integer with an optional sign; blanks before it are skipped. Anything else, and a value
/// out of range, raises EConvertError.
int StrToInt(const std::string& text);
/// The same, with a value in the failure's place.
int StrToIntDef(const std::string& text, int otherwise) noexcept;
/// A decimal number with an optional sign, fraction and exponent; blanks round it are skipped. The point is
/// "." in every language. Anything else, and a value out of range, raises EConvertError.
double StrToFloat(const std::string& text);
/// A number in at most 15 significant digits, without trailing zeros.
std::string FloatToStr(double value);
