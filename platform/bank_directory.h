#pragma once

#include <optional>

#include "platform/host_api.h"

namespace norvik {

/// The functions of a bank directory, none of them null; nothing if there is no such directory.
std::optional<norvik_bank_directory> FindBankDirectory(norvik_handle directory) noexcept;

}  // namespace norvik
