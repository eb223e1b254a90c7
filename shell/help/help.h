// Opening of the help.
#pragma once

#include <string>

#include "shell/state/run_state.h"

namespace orm {

// A book ("NORME.HLP") or a page of the manual ("manuale/coa.md"), in a window of its own that does
// not wait for anybody.
void MostraGuida(RunState& stato, const std::string& place);

void MostraAvvertenze(RunState& stato);
void MostraManuale(RunState& stato);
void MostraNorme(RunState& stato);
void MostraNormeInarcassa(RunState& stato);

}  // namespace orm
