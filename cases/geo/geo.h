// Geotechnical services: a percentage of their own by subclass and period, kept in GEO.CFG.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void DatiGEO(RunState& stato);

// Prints the report of FileInp on NumFileUscita.
void CalcoloGEO(RunState& stato);

}  // namespace orm
