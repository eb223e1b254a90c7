#include "cases/pes/data.h"
#include "cases/pes/form.h"
#include "cases/pes/pes.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputPes(RunState& stato) {
  DatiPes dati;
  const Inizio inizio = IniziaInput(stato, dati);
  if (inizio == Inizio::Rinuncia) return;
  ChiediElenco(dati.Beni, AlMassimo(kBeniPesMassimi, "BENI"),
               [&](const PostoRiga& posto, BenePes& bene) {
                 return FrmPesDati(stato, posto, bene, dati.Beni).Chiedi();
               });
  // A new note of which nothing was confirmed is none.
  if (inizio == Inizio::Nuova && dati.Beni.empty()) return;
  ConcludiInput(stato, dati);
}

}  // namespace orm
