// Checks of text fields and the output form of an amount, for dialogs and screens. Free functions without
// state; they accept any bytes and never throw, except for lack of memory. Text is bytes in the ANSI code
// page, and all counts here are in bytes.
#pragma once

#include <cstdint>
#include <string>

/// Checks a date field "yyyymmdd": empty if it is a date, "ET11019" if it is not eight digits, "ET11018" if
/// the eight digits are no date.
std::string CheckDate(const std::string& text);

/// Whether the three numbers are a day of the calendar from 1900-01-01 to 9999-12-31, both included.
bool IsValidDate(int year, int month, int day);

/// Whether every byte is '0' to '9'; true for an empty text.
bool IsAllDigits(const std::string& text);

/// The number at the start of a text: hexadecimal after "0x" or "0X", otherwise decimal. White space and one
/// sign before the digits are skipped, whatever follows the digits is ignored. 0 if there are no digits. A
/// decimal number outside 32 bits becomes the nearest bound; a hexadecimal number becomes its 32 bits, all
/// ones if it needs more.
std::int32_t ParseNumber(const std::string& text);

/// Groups the integer part by thousands with "," and writes exactly two decimals: missing ones are "0",
/// further ones are cut and not rounded. An empty text counts as "0"; a leading "-" stays first. Text that is
/// not a number is grouped in the same way.
std::string FormatAmount(const std::string& text);
