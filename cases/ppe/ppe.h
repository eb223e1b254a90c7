// Expropriation plans: a fixed tariff for each cadastral unit.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void InputPpe(RunState& stato);

// Prints the report of FileInp on NumFileUscita; `totale` receives the sum of the fees. A product
// in Lire beyond 32 bits is a failure.
void CalcoloPpe(RunState& stato, double& totale);

}  // namespace orm
