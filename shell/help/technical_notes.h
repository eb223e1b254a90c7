// The technical notes in PDF, shown by the program that the user has chosen for such files.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void MostraNotaBalconi(RunState& stato);
void MostraNotaSolai(RunState& stato);

}  // namespace orm
