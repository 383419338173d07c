// The proxy of the host's print library: records to paper, by a template of the host.
//
// For the print actions, through g_pPrint. It knows no form and no printer.
#pragma once

#include <string>

#include "data/corvane.h"
#include "host/binding.h"

/// The host's print library, which renders records by a template of its own.
///
/// A refusal throws TException with one key for each line of the host's text; a text with a NUL in it throws
/// "CF30005" before anything is sent. All calls: user-interface thread.
class PrintIntf {
 public:
  /// Binds the seven functions. TException "CF14010" if any is missing.
  explicit PrintIntf(norvik_handle module);

  /// Starts the library; `publicInformation` is what InitModule received.
  void Init(norvik_handle publicInformation);

  /// Prints `data`, which may be empty. Sets in `head` COUNT to the number of rows, MAKEDATE to the local
  /// date and time ("yyyy-mm-dd hh:mm:ss") and SELCONDITION to `condition`, also if printing fails.
  void PrintList(const std::string& templateName, const std::string& condition, corvane::Row& head,
                 const corvane::List& data) const;

  /// Opens the host's print settings of the template. No failure is reported.
  void PrintSetup(const std::string& templateName) const;

  /// Calls the host no more: each operation throws LifeEnded from now on, one that is under way as soon as
  /// the host comes back from it.
  void Close() { functions_.Close(); }

 private:
  norvik_handle m_module;
  norvik::FunctionTable functions_;
};

/// Set by InitModule, null after Release.
extern PrintIntf* g_pPrint;
