// Design and supervision of private works, and of public works before D.M. 4-4-2001: lots that run
// through several tariff periods.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void InputPdl(RunState& stato);

// Prints the report of FileInp on NumFileUscita.
void CalcoloPdl(RunState& stato);

}  // namespace orm
