// The calendar behind the date fields of all screens.
#pragma once

#include <string>

#include "toolkit/date_edit.h"

// Lets the user choose a date ("yyyymmdd"), a time ("hhmmss") or both ("yyyymmddhhmmss"), starting from the
// text, or from now if it is no date. The chosen value, or the text unchanged if the user cancels.
// User-interface thread only.
std::string PickDateTime(const std::string& text, TKVXDateType type);
