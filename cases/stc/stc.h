// Condition surveys of lands and buildings.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void InputStc(RunState& stato);

// Prints the report of FileInp on NumFileUscita. An IND.CFG that cannot answer for the month of the
// service is a failure.
void CalcoloStc(RunState& stato);

}  // namespace orm
