// What each menu command does.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dialogs/main_window.h"
#include "shell/state/run_state.h"

namespace orm {

// Runs a command; one that is not there yet says so.
void RunCommand(RunState& stato, std::string_view name);

// The commands of the menu that are not there yet, in menu order: the one list of what is missing.
std::vector<std::string> CommandsNotYet(const std::vector<MenuItem>& menu);

}  // namespace orm
