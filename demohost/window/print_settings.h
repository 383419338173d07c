#pragma once

#include <string>

#include "demohost/info_store.h"

class QWidget;

namespace demohost {

// Asks for the paper of reports, in the language, and puts the answer into "SYSCONFIG_DATA"; false where the
// operator changed nothing.
bool AskPrintSettings(InfoStore& store, const std::string& language, QWidget* parent);

}  // namespace demohost
