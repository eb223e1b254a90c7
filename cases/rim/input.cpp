#include "cases/rim/data.h"
#include "cases/rim/form.h"
#include "cases/rim/rim.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputRim(RunState& stato) {
  DatiRim dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  FrmRimDati form(dati);
  stato.player.Show(form);
  ChiediElenco(stato, dati.Elaborati, AlMassimo(kElaboratiRimMassimi, "ELABORATI"),
               [&](const PostoRiga& posto, ElaboratoRim& elaborato, const auto&) {
                 return FrmRimElaborato(stato, posto, elaborato).Chiedi();
               });
  ConcludiInput(stato, dati);
}

}  // namespace orm
