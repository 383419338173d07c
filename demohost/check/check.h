// Judges a module by the contract of docs/host-guide.md, for the command line; docs/contract-check.md
// describes the cases. Knows no class of the module but its exceptions.
#pragma once

#include "demohost/options.h"

namespace demohost::check {

/// Plays every case of the check against the module, each in a process of its own, and writes a line for each
/// and the counts to the standard output. The exit status: 0 if no case failed, crashed or hung, else 1.
/// In the process of a case it plays that case. Throws OptionError for an unknown case, and FileError,
/// DatabaseError or std::filesystem::filesystem_error where the host's own files can't be read or made.
int Run(const Options& options);

}  // namespace demohost::check
