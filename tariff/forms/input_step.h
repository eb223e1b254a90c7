// The two ends that the input step of every fee case shares: header and "new or change" before the
// case's own dialogs, the agreements with the client behind them.
#pragma once

#include "shell/state/run_state.h"
#include "tariff/files/closing_line.h"
#include "tariff/forms/form_question.h"

namespace orm {

// Shows the header dialog on FileInt, then asks for a new note or a change where FileInp exists.
// Either one closed by its window gives the input up.
Inizio ChiediInizio(RunState& stato);

// Header, question, and the case's fields: those of FileInp for a change, otherwise `dati` as it
// comes, with the closing values of a new note.
template <class Dati>
Inizio IniziaInput(RunState& stato, Dati& dati) {
  const Inizio inizio = ChiediInizio(stato);
  if (inizio == Inizio::Variazione)
    LeggiFileDati(stato.folder, stato.FileInp, dati, stato.chiusura);
  if (inizio == Inizio::Nuova) stato.chiusura = {};
  stato.input = {inizio == Inizio::Nuova, stato.player.Confirmations()};
  return inizio;
}

// A new note of which no form was confirmed is none: a person who closes one window after the other
// wants out.
bool NienteDiConfermato(const RunState& stato);

// Writes the body of FileInp and behind it the closing line as it stands, so that the file is whole
// from the first write on; then shows the agreements, which put their answer in the line's place.
void ChiediAcconti(RunState& stato, const DataWriter& corpo);
template <class Dati>
void ConcludiInput(RunState& stato, Dati& dati) {
  if (NienteDiConfermato(stato)) return;
  DataWriter corpo;
  Campi(corpo, dati);
  ChiediAcconti(stato, corpo);
}

}  // namespace orm
