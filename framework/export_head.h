// What ExportRecords decides before it hands a list to the spreadsheet service.
#pragma once

#include <string>

#include "data/corvane.h"

namespace norvik {

// Replaces the marks BEQRY and ACCGRP of an export's head by the user who asked: QUERYUSER and USERNAME, and
// for BEQRY the heading CONDITION too.
void CompleteExportHead(corvane::Row& head, const std::string& userName);

// True for a name whose part behind the last "." is "txt" in any case.
bool IsTextFileName(const std::string& fileName);

}  // namespace norvik
