// What each menu command does.
#pragma once

#include <string_view>

#include "shell/state/run_state.h"

namespace orm {

// Runs a command. An unknown name does nothing.
void RunCommand(RunState& stato, std::string_view name);

// Whether there is a command of that name.
bool IsCommand(std::string_view name);

}  // namespace orm
