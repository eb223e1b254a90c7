#include "cases/sic/forms.h"
#include "cases/sic/sic.h"
#include "runtime/numbers.h"
#include "tariff/forms/form_class.h"
#include "tariff/forms/form_kind.h"
#include "tariff/forms/input_step.h"

namespace orm {
namespace {

bool ChiediLotto(RunState& stato, const VersioneSic& versione, const PostoRiga& posto,
                 const std::vector<LottoSic>& altri, LottoSic& lotto) {
  if (!ChiediClasse(
          stato, posto, lotto.Classe, lotto.Categoria,
          {.titolo = "CLASSE E CATEGORIA per il LOTTO", .etichetta = true, .proposta = true}))
    return false;
  const PartOfWay qui(stato.player.place, DoveSiamo(posto, lotto.Classe, lotto.Categoria));
  lotto.Tariffa = NumberText(versione.periodo);
  FrmSicImporti importi(stato, posto, lotto, altri);
  stato.player.Show(importi);
  if (lotto.StringaPrestazioni.empty()) lotto.StringaPrestazioni = "00000";
  if (lotto.StringaMaggiorazioni.empty())
    lotto.StringaMaggiorazioni.assign(kPrestazioniSic.size() * versione.maggiorazioni.size(), '0');
  if (lotto.StringaIncrementi.empty()) lotto.StringaIncrementi = "000000";
  FrmSicPrestazioni form(stato.player, versione, lotto);
  stato.player.Show(form);
  return true;
}

}  // namespace

void DatiSIC(RunState& stato) {
  const VersioneSic& versione = VersioneDi(stato.CasoDiParcella);
  DatiSicurezza dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  if (!ChiediTipologia(stato.player, dati.TipoDiParcella, false)) return;
  ChiediElenco(stato, dati.Lotti, AlMassimo(kLottiSicMassimi, "LOTTI"),
               [&](const PostoRiga& posto, LottoSic& lotto, const std::vector<LottoSic>& altri) {
                 return ChiediLotto(stato, versione, posto, altri, lotto);
               });
  // Each lot is a group of its own.
  dati.Gruppi.clear();
  for (std::size_t k = 1; k <= dati.Lotti.size(); ++k)
    dati.Gruppi.push_back(
        {static_cast<std::int16_t>(k), {static_cast<std::int16_t>(versione.periodo)}});
  ConcludiInput(stato, dati);
}

}  // namespace orm
