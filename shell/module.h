// What the five exports do, in C++: start and stop of the module, a pick of the menu, the text of the menu.
// shell/exports.cpp is its only caller but for the tests. Failures are corvane::TException; nothing is caught
// here. User-interface thread.
#pragma once

#include <cstdint>
#include <string>

#include "platform/host_api.h"

namespace norvik {

/// Makes the services in a fixed order and binds them. What was made before a step that fails remains for
/// Release. What an earlier start has left is released first.
void StartModule(norvik_handle publicInformation);

/// Destroys the screens, then the services, then the toolkit's objects; right in every state.
void StopModule();

/// Opens the screen of the field ItemName of `request`, the text of a row; another item does nothing.
/// TException "ET10057" if the text isn't a row, "CF30007" if the module isn't started.
void CallItem(const std::string& request);

/// Copies the menu with a terminator to `*buffer`, which is new char[] if it was null. If writing the menu
/// fails, `*buffer` is as before.
void CopyMenu(char** buffer);

}  // namespace norvik
