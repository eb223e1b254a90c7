#include "cases/pes/data.h"
#include "cases/pes/form.h"
#include "cases/pes/pes.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputPes(RunState& stato) {
  DatiPes dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  ChiediElenco(stato, dati.Beni, AlMassimo(kBeniPesMassimi, "BENI"),
               [&](const PostoRiga& posto, BenePes& bene, const std::vector<BenePes>& altri) {
                 return FrmPesDati(stato, posto, bene, altri).Chiedi();
               });
  ConcludiInput(stato, dati);
}

}  // namespace orm
