// Checks of text fields and the output form of an amount. Free functions without state; they never throw
// (but for memory) and take any bytes. Text is bytes in the ANSI code page, and all counting here is in
// bytes.
#pragma once

#include <cstdint>
#include <string>

// Checks a date field "yyyymmdd": empty if it is a date, "ET11019" if it is not eight digits, "ET11018" if
// the eight digits make no date.
std::string CheckDate(const std::string& text);

// Whether the three numbers are a day of the calendar from 1900-01-01 to 9999-12-31, both included.
bool IsValidDate(int year, int month, int day);

// Whether every byte is '0' to '9'; true for an empty text.
bool IsAllDigits(const std::string& text);

// The number at the start of a text: hexadecimal behind "0x" or "0X", otherwise decimal. White space and
// one sign before the digits are taken, what follows the digits is left. 0 where there are no digits. A
// decimal number outside 32 bits gives the nearest bound; a hexadecimal number gives its 32 bits as they
// stand, all ones if it needs more.
std::int32_t ParseNumber(const std::string& text);

// Groups the integer part by thousands with "," and gives exactly two decimals: missing ones are "0",
// further ones are cut and not rounded. An empty text counts as "0"; one leading "-" stays in front. Text
// that is not a number is grouped in the same way.
std::string FormatAmount(const std::string& text);
