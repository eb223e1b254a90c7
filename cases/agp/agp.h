// Updating of the prices of a design.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void InputAgp(RunState& stato);

// Prints the report of FileInp on NumFileUscita.
void CalcoloAgp(RunState& stato);

}  // namespace orm
