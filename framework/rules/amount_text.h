// Amounts as texts with exactly two decimals. The business objects and the condition checks use it; it knows
// no window.
#pragma once

#include <string>
#include <string_view>

namespace norvik {

/// Converts an amount as typed, with or without thousands separators, into its normal form and stores it in
/// `out`; true if it had that form already. The text may have any length and ends at its first NUL. A text
/// that is no number raises the toolkit's EConvertError; `out` then holds the text without its separators.
bool NormalizeAmountText(std::string_view text, std::string& out);

}  // namespace norvik
