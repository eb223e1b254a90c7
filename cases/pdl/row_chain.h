// The dialogs of one row of a lot, one after the other.
#pragma once

#include <string>
#include <vector>

#include "cases/pdl/data.h"
#include "shell/state/run_state.h"

namespace orm {

// Asks amounts, services, extra services and variation reports of a row whose class and period are
// set. `fatte`: the rows of the note before it, for what a note can hold in all.
void ChiediRiga(RunState& stato, const std::string& dove, const std::vector<RigaPdl>& fatte,
                RigaPdl& riga);

}  // namespace orm
