// The two ends that the input step of every fee case shares: header and "new or change" before the
// case's own dialogs, the agreements with the client behind them.
#pragma once

#include <functional>
#include <string>

#include "shell/state/run_state.h"
#include "tariff/files/closing_line.h"
#include "tariff/forms/form_question.h"

namespace orm {

// What a note holds of what its case has several of, "3 lotti"; empty where it has no list.
std::string Quanti(std::size_t numero, const char* uno, const char* molti);
template <class Dati>
std::string Contenuto(const Dati& dati) {
  if constexpr (requires { dati.Gruppi.size() + dati.Righe.size(); })
    return Quanti(dati.Gruppi.size(), "gruppo", "gruppi");
  else if constexpr (requires { dati.Lotti.size(); })
    return Quanti(dati.Lotti.size(), "lotto", "lotti");
  else if constexpr (requires { dati.Beni.size(); })
    return Quanti(dati.Beni.size(), "bene", "beni");
  else if constexpr (requires { dati.Elaborati.size(); })
    return Quanti(dati.Elaborati.size(), "elaborato", "elaborati");
  else if constexpr (requires { dati.Terreni.size(); })
    return Quanti(dati.Terreni.size(), "terreno", "terreni");
  else
    return "";
}

// The note that the last command saved, told by the main window in passing; empty for none.
struct NotaSalvata {
  std::string testo;
};

// Shows the header dialog on FileInt, then asks for a new note or a change where FileInp exists.
// Either one closed by its window gives the input up. `contenuto` reads what the stored note holds.
Inizio ChiediInizio(RunState& stato, const std::function<std::string()>& contenuto);

// Header, question, and the case's fields: those of FileInp for a change, otherwise `dati` as it
// comes, with the closing values of a new note.
template <class Dati>
Inizio IniziaInput(RunState& stato, Dati& dati) {
  const Inizio inizio = ChiediInizio(stato, [&stato] {
    Dati archiviati;
    Chiusura chiusura;
    LeggiFileDati(stato.folder, stato.FileInp, archiviati, chiusura);
    return Contenuto(archiviati);
  });
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
void ChiediAcconti(RunState& stato, const DataWriter& corpo, const std::string& contenuto);
template <class Dati>
void ConcludiInput(RunState& stato, Dati& dati) {
  if (NienteDiConfermato(stato)) return;
  DataWriter corpo;
  Campi(corpo, dati);
  ChiediAcconti(stato, corpo, Contenuto(dati));
}

}  // namespace orm
