// The dialog of the print settings, which the print library of the demonstration host opens. It prints
// nothing: libraries/print.cpp reads what was chosen at each print.
#pragma once

#include <string>

#include "demohost/info_store.h"

class QWidget;

namespace demohost {

/// Asks for the paper of reports in a dialog in the language, and puts the answer into "SYSCONFIG_DATA".
/// False where the operator cancelled.
bool AskPrintSettings(InfoStore& store, const std::string& language, QWidget* parent);

}  // namespace demohost
