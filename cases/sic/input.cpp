#include <algorithm>
#include <cmath>

#include "cases/sic/forms.h"
#include "cases/sic/sic.h"
#include "runtime/numbers.h"
#include "tariff/forms/form_kind.h"
#include "tariff/forms/input_step.h"
#include "tariff/forms/lot_chain.h"

namespace orm {
namespace {

// The dialogs of the lots, one lot after the other.
class CatenaSic {
 public:
  CatenaSic(RunState& run, DatiSicurezza& datiDelCaso)
      : stato(run), versione(VersioneDi(run.CasoDiParcella)), dati(datiDelCaso) {}

  void Chiedi();

 private:
  void ChiediLotto(const PostoLotto& posto, LottoSic& lotto);
  void ChiediImporti(LottoSic& lotto);

  RunState& stato;
  const VersioneSic& versione;
  DatiSicurezza& dati;
  std::vector<LottoSic> fatti;
};

// The end of the input drops the lot that it is pressed on and those after it.
void CatenaSic::Chiedi() {
  const TestiClasse testi{
      .titolo = "CLASSE E CATEGORIA per il LOTTO", .etichetta = true, .proposta = true};
  FrmGenClasse classi(stato, false);
  for (;;) {
    const PostoLotto posto{fatti.size() + 1, dati.Lotti.size()};
    LottoSic lotto = posto.Nuovo() ? LottoSic() : dati.Lotti[fatti.size()];
    if (fatti.size() >= kLottiSicMassimi)
      classi.Rifiuto = OltreIlMassimo(kLottiSicMassimi, "LOTTI");
    if (!ChiediClasse(stato, classi, posto, lotto.Classe, lotto.Categoria, testi)) break;
    ChiediLotto(posto, lotto);
    fatti.push_back(std::move(lotto));
  }
  dati.Lotti = std::move(fatti);
  dati.Gruppi.clear();
  for (std::size_t k = 1; k <= dati.Lotti.size(); ++k)
    dati.Gruppi.push_back(
        {static_cast<std::int16_t>(k), {static_cast<std::int16_t>(versione.periodo)}});
}

void CatenaSic::ChiediLotto(const PostoLotto& posto, LottoSic& lotto) {
  lotto.Tariffa = NumberText(versione.periodo);
  ChiediImporti(lotto);
  if (lotto.StringaPrestazioni.empty()) lotto.StringaPrestazioni = "00000";
  if (lotto.StringaMaggiorazioni.empty())
    lotto.StringaMaggiorazioni.assign(kPrestazioniSic.size() * versione.maggiorazioni.size(), '0');
  if (lotto.StringaIncrementi.empty()) lotto.StringaIncrementi = "000000";
  FrmSicPrestazioni form(stato.player, versione, DoveSiamo(posto, lotto.Classe, lotto.Categoria),
                         lotto);
  stato.player.Show(form);
  lotto.StringaPrestazioni = form.StringaPrestazioni;
  lotto.StringaMaggiorazioni = form.StringaMaggiorazioni;
  lotto.StringaIncrementi = form.StringaIncrementi;
}

void CatenaSic::ChiediImporti(LottoSic& lotto) {
  double progetto = 0, esecuzione = 0;
  for (const LottoSic& altro : fatti) {
    progetto += std::fabs(altro.ImportoProgetto);
    esecuzione += std::fabs(altro.ImportoEsecuzione);
  }
  FrmSicImporti form(stato, "SICUREZZA CANTIERI : IMPORTI DEI LAVORI NEL LOTTO ", lotto, progetto,
                     esecuzione);
  stato.player.Show(form);
  lotto.ImportoProgetto = form.ImportoProgetto;
  lotto.ImportoEsecuzione = form.ImportoEsecuzione;
}

}  // namespace

void DatiSIC(RunState& stato) {
  DatiSicurezza dati;
  IniziaInput(stato, dati);
  FrmGenTipologia tipologia(stato.player, dati.TipoDiParcella);
  tipologia.Option[3].SetVisible(false);
  tipologia.Help[3].SetVisible(false);
  stato.player.Show(tipologia);
  if (!tipologia.Confermato()) return;
  dati.TipoDiParcella = tipologia.TipoParcella;
  CatenaSic(stato, dati).Chiedi();
  ConcludiInput(stato, dati);
}

}  // namespace orm
