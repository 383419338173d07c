#include "framework/rules/amount_text.h"

#include <algorithm>
#include <iterator>

#include "toolkit/decimal.h"

namespace norvik {
bool NormalizeAmountText(std::string_view text, std::string& out) {
  text = text.substr(0, text.find('\0'));
  out.clear();
  std::copy_if(text.begin(), text.end(), std::back_inserter(out), [](char c) { return c != ','; });
  if (out.empty()) out = text;
  const std::string normal = TDecimal(out).ToFixed(2);
  const bool wasNormal = normal == out;
  out = normal;
  return wasNormal;
}

}  // namespace norvik
