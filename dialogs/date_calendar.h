// The calendar that the date fields of all screens open, through the base form. It returns a text; whether
// the text is valid for the field is the caller's to check.
#pragma once

#include <string>

#include "toolkit/date_edit.h"

/// Lets the user choose a date ("yyyymmdd"), a time ("hhmmss") or both ("yyyymmddhhmmss"), starting from the
/// text, or from now if it is no date. Returns the chosen value, or the text unchanged if the user cancels.
/// User-interface thread only.
std::string PickDateTime(const std::string& text, TKVXDateType type);
