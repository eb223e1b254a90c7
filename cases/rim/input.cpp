#include "cases/rim/data.h"
#include "cases/rim/form.h"
#include "cases/rim/rim.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputRim(RunState& stato) {
  DatiRim dati;
  const Inizio inizio = IniziaInput(stato, dati);
  if (inizio == Inizio::Rinuncia) return;
  FrmRimDati form(dati);
  stato.player.Show(form);
  ChiediElenco(dati.Elaborati, AlMassimo(kElaboratiRimMassimi, "ELABORATI"),
               [&](const PostoRiga& posto, ElaboratoRim& elaborato) {
                 return FrmRimElaborato(stato, posto, elaborato).Chiedi();
               });
  // A new note of which nothing was confirmed is none.
  if (inizio == Inizio::Nuova && !form.Confermato() && dati.Elaborati.empty()) return;
  ConcludiInput(stato, dati);
}

}  // namespace orm
