// Design and supervision of public works under D.M. 4-4-2001: the fee of each lot by groups of
// services of Tables B and B1.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void InputEsl(RunState& stato);

// Prints the report of FileInp on NumFileUscita; `totale` receives the sum of the fees. A lot with
// a class outside the tables and an eleventh lot with accounting are a failure.
void CalcoloEsl(RunState& stato, double& totale);

}  // namespace orm
