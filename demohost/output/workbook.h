// A list as a workbook for spreadsheet programs. Used by the spreadsheet library; writes no formula and no
// chart.
#pragma once

#include <filesystem>
#include <functional>

#include "demohost/output/export.h"

namespace demohost {

/// Writes an Office Open XML workbook: title and head, the captions, which stay in sight, and the rows.
/// Amounts are numbers with two decimals and dates are dates. Everything else is text, and so is a value that
/// isn't what its column says or has more than the 15 digits of a workbook's numbers.
///
/// A name that ends in .xls gets the ending .xlsx, so that no program asks about an ending that belies the
/// content. The caller can't know of a file under that name, so `mayReplace` is asked where there is one. The
/// file is made beside its place and put there in one step.
///
/// Returns the place of the workbook, empty where it was not to be replaced. Throws Refused with
/// kNotExported, also where a file is in the way and there is nobody to ask.
std::filesystem::path WriteWorkbook(const std::filesystem::path& path, const ExportSheet& sheet,
                                    const std::function<bool(const std::filesystem::path&)>& mayReplace = {});

}  // namespace demohost
