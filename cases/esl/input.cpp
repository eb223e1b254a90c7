#include <algorithm>
#include <cmath>

#include "cases/esl/data.h"
#include "cases/esl/esl.h"
#include "cases/esl/form_services.h"
#include "dialogs/message_boxes.h"
#include "tariff/forms/form_kind.h"
#include "tariff/forms/form_pdl_amounts.h"
#include "tariff/forms/form_pdl_extras.h"
#include "tariff/forms/form_question.h"
#include "tariff/forms/input_step.h"
#include "tariff/forms/lot_chain.h"

namespace orm {
namespace {

// The dialogs of the lots, one lot after the other.
class CatenaEsl {
 public:
  CatenaEsl(RunState& run, std::vector<LottoEsl>& lottiDelCaso)
      : stato(run), lotti(lottiDelCaso), esistenti(lotti.size()) {}

  void Chiedi();

 private:
  void ChiediLotto();
  void ChiediImporti();
  void ChiediPrestazioni();
  void ChiediContabilita();
  LottoEsl& Lotto() { return lotti[fatti]; }

  RunState& stato;
  std::vector<LottoEsl>& lotti;
  const std::size_t esistenti;
  std::size_t fatti = 0;  // lots gone through
  std::size_t righeContabilita = 0;
  std::string dove;
};

// The end of the input drops the lot that it is pressed on and those after it.
void CatenaEsl::Chiedi() {
  FrmGenClasse classi(stato, false);
  for (;; ++fatti) {
    const PostoLotto posto{fatti + 1, esistenti};
    LottoEsl lotto = posto.Nuovo() ? LottoEsl() : Lotto();
    if (fatti >= kLottiMassimi) classi.Rifiuto = OltreIlMassimo(kLottiMassimi, "LOTTI");
    if (!ChiediClasse(stato, classi, posto, lotto.Classe, lotto.Categoria)) break;
    dove = DoveSiamo(posto, lotto.Classe, lotto.Categoria);
    lotti.resize(std::max(lotti.size(), fatti + 1));
    Lotto() = std::move(lotto);
    ChiediLotto();
  }
  lotti.resize(fatti);
}

// A lot without positive amounts stays, with whatever it had before.
void CatenaEsl::ChiediLotto() {
  ChiediImporti();
  LottoEsl& lotto = Lotto();
  if (lotto.ImportoProgettazione > 0 || lotto.ImportoDirezioneLavori > 0) {
    ChiediPrestazioni();
    ChiediContabilita();
  }
  const std::string rifiuto = RifiutoContabilita(righeContabilita);
  if (lotto.MisureContabilita == "SI" && !rifiuto.empty()) {
    stato.player.Ask(Avviso(rifiuto));
    lotto.MisureContabilita = "NO";
    lotto.CoefficienteContabilita = 0;
  }
  if (lotto.MisureContabilita == "SI") ++righeContabilita;
}

void CatenaEsl::ChiediImporti() {
  ImportiPdl altri{};
  for (std::size_t i = 0; i < fatti; ++i) {
    altri[0] += std::fabs(lotti[i].ImportoProgettazione);
    altri[4] += std::fabs(lotti[i].ImportoDirezioneLavori);
  }
  FrmPdlImporti form(stato, "PARCELLA PROGETTAZIONE e D.L. D.M. 4-4-01 : IMPORTI LAVORI nel LOTTO",
                     dove, {Lotto().ImportoProgettazione, 0, 0, 0, Lotto().ImportoDirezioneLavori},
                     altri);
  form.SoloProgettoEDirezione();
  stato.player.Show(form);
  Lotto().ImportoProgettazione = form.Importi[0];
  Lotto().ImportoDirezioneLavori = form.Importi[4];
}

void CatenaEsl::ChiediPrestazioni() {
  FrmEslPrestazioniBase base(dove, Lotto());
  stato.player.Show(base);
  Lotto().PrestazioniBase = base.StringaDellePrestazioni;
  FrmEslPrestazioniIntegrative integrative(dove, Lotto());
  stato.player.Show(integrative);
  Lotto().PrestazioniIntegrative = integrative.StringaDellePrestazioni;
  Lotto().NumeroAddetti = integrative.NumeroAddetti;
}

void CatenaEsl::ChiediContabilita() {
  LottoEsl& lotto = Lotto();
  bool chiesta = false;
  if (lotto.ImportoDirezioneLavori != 0) {
    FrmPdlAltri form(stato.player, "LAVORI PUBBLICI D.M. 4-4-2001", dove,
                     {.Contabilita = lotto.MisureContabilita == "SI"});
    form.SoloContabilita();
    form.Rifiuto = RifiutoContabilita(righeContabilita);
    stato.player.Show(form);
    chiesta = form.Prestazioni.Contabilita;
  }
  lotto.MisureContabilita = chiesta ? "SI" : "NO";
  lotto.CoefficienteContabilita =
      chiesta ? ChiediCoefficienteContabilita(stato.player, dove, lotto.Classe,
                                              lotto.CoefficienteContabilita)
              : 0;
}

bool ChiediTipologia(RunState& stato, std::string& TipoParcella) {
  FrmGenTipologia form(stato.player, TipoParcella);
  form.Option[3].SetVisible(false);
  form.Help[3].SetVisible(false);
  stato.player.Show(form);
  TipoParcella = form.TipoParcella;
  return form.Confermato();
}

}  // namespace

void InputEsl(RunState& stato) {
  DatiEsl dati;
  IniziaInput(stato, dati);
  if (!ChiediTipologia(stato, dati.TipoParcella)) return;
  CatenaEsl(stato, dati.Lotti).Chiedi();
  const bool conDirezione = std::ranges::any_of(
      dati.Lotti, [](const LottoEsl& lotto) { return lotto.ImportoDirezioneLavori != 0; });
  dati.CertificatoRegolare =
      conDirezione
          ? ChiediSiNo(stato.player, "ULTERIORI PRESTAZIONI",
                       "COLLAUDO o CERTIFICATO REGOLARE ESECUZIONE ?", "", dati.CertificatoRegolare)
          : "NO";
  ConcludiInput(stato, dati);
}

}  // namespace orm
