// The proxy of the host's spreadsheet library: records to workbooks and text files.
//
// For the export of a list, through g_pExcel. What is exported is decided above, in framework/.
#pragma once

#include <cstdint>
#include <string>

#include "data/corvane.h"
#include "host/binding.h"

/// The host's spreadsheet library, which writes records to a file. Only texts cross: a failure leaves the
/// documents as they were, and whether a part of the file remains is up to the host.
///
/// A refusal throws TException with one key for each line of the host's text; a text with a NUL in it throws
/// "CF30005" before anything is sent. All calls: user-interface thread.
class ExcelIntf {
 public:
  /// Binds the ten functions. TException "CF20023" if any is missing.
  explicit ExcelIntf(norvik_handle module);

  /// Writes a workbook: `head` names the export, `columns` has one row for each column, `data` one for each
  /// record.
  void ExportExcel(const std::string& path, const corvane::Row& head, const corvane::List& columns,
                   const corvane::List& data) const;

  /// Writes a text file with `separator` between the values; the meaning of `option` is the host's.
  void ExportText(const std::string& path, const corvane::Row& head, const corvane::List& columns,
                  const corvane::List& data, const std::string& separator, std::int32_t option) const;

  /// Calls the host no more: each operation throws LifeEnded from now on, one that is under way as soon as
  /// the host comes back from it.
  void Close() { functions_.Close(); }

 private:
  norvik_handle m_module;
  norvik::FunctionTable functions_;
};

/// Set by InitModule, null after Release.
extern ExcelIntf* g_pExcel;
