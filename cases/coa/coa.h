// Administrative testing of works, and the certificate of their regular execution.
#pragma once

#include "shell/state/run_state.h"

namespace orm {

void InputCoa(RunState& stato);

// Prints the report of FileInp on NumFileUscita.
void CalcoloCoa(RunState& stato);

}  // namespace orm
