// Amounts as texts with exactly two decimals.
#pragma once

#include <string>
#include <string_view>

namespace norvik {

// Brings an amount as typed, thousands separators and all, into its normal form and stores it in `out`; true
// when it was in that form already. The text may have any length and ends at its first NUL. Where it is no
// number the toolkit's EConvertError is raised; `out` then holds the text without its separators.
bool NormalizeAmountText(std::string_view text, std::string& out);

}  // namespace norvik
