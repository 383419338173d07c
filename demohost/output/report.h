// A list as a PDF to be printed. Used by the print library; asks the operator nothing, and knows no
// printer.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "demohost/output/export.h"

namespace demohost {

/// The paper of a report.
struct ReportPaper {
  bool landscape = true;  ///< else portrait
  bool a3 = false;        ///< else A4
};

/// Lays a sheet out as a PDF: on each page the title, the head, the captions and a page number, and as many
/// rows as fit. Columns that don't fit on the width of a page follow on pages of their own after all rows of
/// the columns before. The font is the application's; needs a QGuiApplication. The file is put in place in
/// one step. Throws Refused with kNotPrinted.
void WriteReport(const std::filesystem::path& path, const ExportSheet& sheet, const ReportPaper& paper);

}  // namespace demohost
