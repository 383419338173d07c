// The dialog of the print settings. What is chosen is used by libraries/print.cpp.
#pragma once

#include <string>

#include "demohost/info_store.h"

class QWidget;

namespace demohost {

/// Asks for the paper of reports in a dialog in the language, and puts the answer into "SYSCONFIG_DATA".
/// False where the operator cancelled.
bool AskPrintSettings(InfoStore& store, const std::string& language, QWidget* parent);

}  // namespace demohost
