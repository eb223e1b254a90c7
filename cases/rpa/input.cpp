#include "cases/rpa/data.h"
#include "cases/rpa/form.h"
#include "cases/rpa/rpa.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputRpa(RunState& stato) {
  DatiRpa dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  FrmRpaDati form(dati);
  stato.player.Show(form);
  ChiediElenco(stato, dati.Terreni, AlMassimo(kTerreniRpaMassimi, "TERRENI"),
               [&](const PostoRiga& posto, TerrenoRpa& terreno, const auto&) {
                 return FrmRpaTerreno(stato, posto, terreno).Chiedi();
               });
  ConcludiInput(stato, dati);
}

}  // namespace orm
