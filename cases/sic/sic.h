// Site safety (D.Lgs 494/96): the cases "SC1", by the national councils with Table A, and "SC2", by
// D.M. 4-4-2001 with its curve. CasoDiParcella tells which.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void DatiSIC(RunState& stato);

// Prints the report of FileInp on NumFileUscita. A least fee by the part of the works done, where
// no works were designed, is a failure.
void CalcoloSIC(RunState& stato);

}  // namespace orm
