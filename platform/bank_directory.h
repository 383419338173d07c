// The bank directory that the host has registered, as the module's look-ups use it.
//
// For dialogs/, which finds banks by number and name. Registering one is the host's part and stands in
// platform/host_api.h.
#pragma once

#include <optional>

#include "platform/export.h"
#include "platform/host_api.h"

namespace norvik {

/// The functions of a bank directory, none of them null; nothing if there is no such directory.
NORVIK_EXPORT std::optional<norvik_bank_directory> FindBankDirectory(norvik_handle directory) noexcept;

}  // namespace norvik
