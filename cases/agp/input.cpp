#include <algorithm>

#include "cases/agp/agp.h"
#include "cases/agp/data.h"
#include "cases/agp/form.h"
#include "tariff/forms/input_step.h"
#include "tariff/forms/lot_chain.h"

namespace orm {
namespace {

// The end of the input drops the lot that it is pressed on and those after it.
void ChiediLotti(RunState& stato, std::vector<LottoAgp>& lotti) {
  const TestiClasse testi{
      .titolo = "IMPORTO DEI LAVORI RICADENTI NELLA CLASSE E CATEGORIA INDICATA",
      .etichetta = true};
  FrmGenClasse form(stato, true);
  const std::size_t esistenti = lotti.size();
  std::size_t fatti = 0;
  for (;; ++fatti) {
    const PostoLotto posto{fatti + 1, esistenti};
    LottoAgp lotto = posto.Nuovo() ? LottoAgp() : lotti[fatti];
    if (fatti >= kLottiAgpMassimi) form.Rifiuto = OltreIlMassimo(kLottiAgpMassimi, "LOTTI");
    double altri = 0;
    for (std::size_t i = 0; i < fatti; ++i) altri += lotti[i].Importo;
    form.AltriLotti = altri;
    form.SetImporto(lotto.Importo);
    if (!ChiediClasse(stato, form, posto, lotto.Classe, lotto.Categoria, testi)) break;
    lotto.Importo = form.Importo;
    lotti.resize(std::max(lotti.size(), fatti + 1));
    lotti[fatti] = lotto;
  }
  lotti.resize(fatti);
}

}  // namespace

void InputAgp(RunState& stato) {
  DatiAgp dati;
  IniziaInput(stato, dati);
  FrmAgpDatig form(stato.player, dati);
  stato.player.Show(form);
  if (!form.Confermato()) return;
  dati.TipoDiAggiornamento = form.TipoDiAggiornamento;
  dati.EsecutoreDellAggiornamento = form.EsecutoreDellAggiornamento;
  dati.PeriodoTariffario = form.PeriodoTariffario;
  ChiediLotti(stato, dati.Lotti);
  ConcludiInput(stato, dati);
}

}  // namespace orm
