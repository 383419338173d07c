// Amounts and numbers as lists show and sum them, many rows at a time: texts to hundredths and back,
// thousands separators, and the display formats of columns. Numbers that the user types and whose digits all
// count go through decimal.h.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Hundredths of a currency unit. Amounts of 30 digits fit, and the sum of as many as a list can hold.
__extension__ using THundredths = __int128;

/// The amount that a text means: an optional sign, digits with or without thousands separators, an
/// optional point with digits, blanks around allowed, at most 30 digits. Decimals after the second are left
/// out. Nothing for any other text.
std::optional<THundredths> ParseAmount(std::string_view text);
/// Plain text with two decimals: "-1234.50".
std::string AmountText(THundredths amount);
/// Digits with a "," between groups of three from the right; whatever else the text holds counts as a digit.
std::string GroupThousands(std::string_view digits);
/// A number in plain text with its whole part grouped: "-1234.5" gives "-1,234.5".
std::string GroupNumber(std::string_view number);

/// Display formats of a list's columns (TListColumn::Tag). A text that is no number is shown as it is in all
/// of them.
enum TColumnFormat {
  /// The text as it is.
  cfText = 0,
  /// With thousands separators and two decimals.
  cfAmount = 2,
  /// With thousands separators and the decimals that it has.
  cfNumber = 4,
  /// The text as it is, at the right edge.
  cfRightText = 5,
  /// A column for the program alone, never shown to the user.
  cfInternal = 100
};

/// What a list shows for a text in a column of a display format; any other number counts as cfText.
std::string CellText(int format, const std::string& text);
