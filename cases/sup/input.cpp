#include "cases/sup/data.h"
#include "cases/sup/form.h"
#include "cases/sup/sup.h"
#include "tariff/forms/form_class.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputSup(RunState& stato) {
  DatiSup dati;
  const Inizio inizio = IniziaInput(stato, dati);
  if (inizio == Inizio::Rinuncia) return;
  ChiediElenco(dati.Attivita, AlMassimo(kAttivitaSupMassime, "ATTIVITÀ"),
               [&](const PostoRiga& posto, AttivitaSup& attivita) {
                 return FrmSupAttivita(stato, posto, attivita).Chiedi();
               });
  ChiediElenco(dati.Lotti, AlMassimo(kLottiSupMassimi, "LOTTI"),
               [&](const PostoRiga& posto, LottoSup& lotto) {
                 return ChiediClasseEImporto(stato, posto, dati.Lotti, lotto);
               });
  // A new note of which nothing was confirmed is none.
  if (inizio == Inizio::Nuova && dati.Attivita.empty() && dati.Lotti.empty()) return;
  ConcludiInput(stato, dati);
}

}  // namespace orm
