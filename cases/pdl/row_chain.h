// The dialogs of one row of a lot, one after the other.
#pragma once

#include <string>
#include <vector>

#include "cases/pdl/data.h"
#include "shell/state/run_state.h"

namespace orm {

// A row on its way: the number of its lot, and whether the note lacked it before.
struct PostoPdl {
  std::string lotto;
  bool nuova;
};

// Asks amounts, services, extra services and variation reports of a row whose class and period are
// set. `altre`: the other rows of the note, for what a note can hold in all.
void ChiediRiga(RunState& stato, const PostoPdl& posto, const std::vector<RigaPdl>& altre,
                RigaPdl& riga);

}  // namespace orm
