// What each menu command does.
#pragma once

#include <string>
#include <string_view>

#include "shell/state/run_state.h"

namespace orm {

// Runs a command. An unknown name does nothing.
void RunCommand(RunState& stato, std::string_view name);

// The command that calculates the note of an input command.
std::string CalculationOf(std::string_view inputName);

// Whether there is a command of that name.
bool IsCommand(std::string_view name);

}  // namespace orm
