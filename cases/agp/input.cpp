#include "cases/agp/agp.h"
#include "cases/agp/data.h"
#include "cases/agp/form.h"
#include "tariff/forms/form_class.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputAgp(RunState& stato) {
  DatiAgp dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  FrmAgpDatig form(stato.player, dati);
  stato.player.Show(form);
  if (!form.Confermato()) return;
  ChiediElenco(stato, dati.Lotti, AlMassimo(kLottiAgpMassimi, "LOTTI"),
               [&](const PostoRiga& posto, LottoAgp& lotto, const std::vector<LottoAgp>& altri) {
                 return ChiediClasseEImporto(stato, posto, altri, lotto);
               });
  ConcludiInput(stato, dati);
}

}  // namespace orm
