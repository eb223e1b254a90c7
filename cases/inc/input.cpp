#include "cases/inc/config.h"
#include "cases/inc/data.h"
#include "cases/inc/form.h"
#include "cases/inc/inc.h"
#include "tariff/forms/form_class.h"
#include "tariff/forms/input_step.h"

namespace orm {

void InputInc(RunState& stato) {
  const QuoteInc quote = TariffaInc(stato.folder).Quote();
  DatiInc dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  FrmIncDati form(dati, quote.massimoCompensi);
  stato.player.Show(form);
  if (!form.Confermato()) return;
  ChiediElenco(stato, dati.Lotti, AlMassimo(kLottiIncMassimi, "LOTTI"),
               [&](const PostoRiga& posto, LottoInc& lotto, const std::vector<LottoInc>& altri) {
                 if (!ChiediClasseEImporto(stato, posto, altri, lotto)) return false;
                 const PartOfWay qui(stato.player.place,
                                     DoveSiamo(posto, lotto.Classe, lotto.Categoria));
                 FrmIncPrestazioni prestazioni(quote, lotto);
                 stato.player.Show(prestazioni);
                 return true;
               });
  ConcludiInput(stato, dati);
}

}  // namespace orm
