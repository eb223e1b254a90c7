// Static testing of structures: the cases "CS1" and "CS2", which differ in their tariff file and in
// the tables of the revision of the stability calculations. CasoDiParcella tells which.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void InputCos(RunState& stato);

// Prints the report of FileInp on NumFileUscita, by the tariff of CS1.CFG or CS2.CFG.
void CalcoloCos(RunState& stato);

}  // namespace orm
