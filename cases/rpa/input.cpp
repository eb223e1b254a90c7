#include "cases/rpa/data.h"
#include "cases/rpa/form.h"
#include "cases/rpa/rpa.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputRpa(RunState& stato) {
  DatiRpa dati;
  const Inizio inizio = IniziaInput(stato, dati);
  if (inizio == Inizio::Rinuncia) return;
  FrmRpaDati form(dati);
  stato.player.Show(form);
  ChiediElenco(dati.Terreni, AlMassimo(kTerreniRpaMassimi, "TERRENI"),
               [&](const PostoRiga& posto, TerrenoRpa& terreno) {
                 return FrmRpaTerreno(stato, posto, terreno).Chiedi();
               });
  // A new note of which nothing was confirmed is none.
  if (inizio == Inizio::Nuova && !form.Confermato() && dati.Terreni.empty()) return;
  ConcludiInput(stato, dati);
}

}  // namespace orm
