// The two generic commands of every fee case, "Input Dati" and "Calcolo".
#pragma once

#include "runtime/explanation/explanation.h"
#include "shell/state/run_state.h"

namespace orm {

// By CasoDiParcella and ModoLire. An unknown code does nothing.
void InputDatiParcella(RunState& stato);

// Checks the three files, asks for the criteria, computes, writes the report and starts EditorTesti
// on it. Returns false when a message of the program ended the command. The report reaches the
// folder whole or not at all. `spiegazioni` asks for those of its figures.
bool CalcoloParcella(RunState& stato, Spiegazioni* spiegazioni = nullptr);

}  // namespace orm
