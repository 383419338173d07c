#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Hundredths of a currency unit. Amounts of 30 digits fit, and the sum of as many as a list can hold.
__extension__ using THundredths = __int128;

/// The amount that a text stands for: an optional sign, digits with or without thousands separators, an
/// optional point with digits, blanks around allowed, at most 30 digits. Decimals behind the second are left
/// out. Nothing for any other text.
std::optional<THundredths> ParseAmount(std::string_view text);
/// Plain text with two decimals: "-1234.50".
std::string AmountText(THundredths amount);
/// Digits with a "," between groups of three from the right; whatever else the text holds counts as a digit.
std::string GroupThousands(std::string_view digits);
/// A number in plain text with its whole part grouped: "-1234.5" gives "-1,234.5".
std::string GroupNumber(std::string_view number);

/// What a list shows for a text in a column of a display format (TListColumn::Tag).
std::string CellText(int format, const std::string& text);
