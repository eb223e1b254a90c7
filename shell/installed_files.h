// The files that an installation brings for the working folder.
#pragma once

#include <span>

#include "shell/state/run_state.h"

namespace orm {

// Their names.
std::span<const char* const> NomiFileInstallati();

// Lays down the configuration files and the technical notes that the working folder lacks, as they
// are among the installed ones; what the folder has stays as it is. Those that are not installed
// are told in one message. A file that cannot be looked at, read or written is a RuntimeFailure.
void DisponiFileInstallati(RunState& stato, const WorkFolder& installati);

}  // namespace orm
