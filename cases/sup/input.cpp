#include "cases/sup/data.h"
#include "cases/sup/form.h"
#include "cases/sup/sup.h"
#include "tariff/forms/form_class.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputSup(RunState& stato) {
  DatiSup dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  ChiediElenco(stato, dati.Attivita, AlMassimo(kAttivitaSupMassime, "ATTIVITÀ"),
               [&](const PostoRiga& posto, AttivitaSup& attivita, const auto&) {
                 return FrmSupAttivita(stato, posto, attivita).Chiedi();
               });
  ChiediElenco(stato, dati.Lotti, AlMassimo(kLottiSupMassimi, "LOTTI"),
               [&](const PostoRiga& posto, LottoSup& lotto, const std::vector<LottoSup>& altri) {
                 return ChiediClasseEImporto(stato, posto, altri, lotto);
               });
  ConcludiInput(stato, dati);
}

}  // namespace orm
