#include <algorithm>

#include "cases/pdl.h"
#include "cases/pdl_data.h"
#include "cases/pdl_form_period.h"
#include "cases/pdl_row_chain.h"
#include "tariff/form_kind.h"
#include "tariff/form_question.h"
#include "tariff/input_step.h"
#include "tariff/lot_chain.h"
#include "tariff/tariff_tables.h"

namespace orm {
namespace {

using RigheDelLotto = std::vector<RigaPdl>;

constexpr const char* kAvvertenza =
    "ATTENZIONE !\n"
    "La procedura non esegue alcun controllo di leggittimità : \n"
    "per cui se indebitamente richiesta, la maggiorazione potrebbe essere applicata "
    "contemporaneamente sia alla Progettazione sia alla Direzione Lavori.";

// The rows of the note lot by lot. A lot without rows has no class to show and is left out.
std::vector<RigheDelLotto> LottiConRighe(const DatiPdl& dati) {
  std::vector<RigheDelLotto> lotti;
  auto riga = dati.Righe.begin();
  for (const LottoPdl& lotto : dati.Lotti) {
    const auto fine = riga + static_cast<std::ptrdiff_t>(lotto.PeriodoDelLotto.size());
    if (riga != fine) lotti.emplace_back(riga, fine);
    riga = fine;
  }
  return lotti;
}

// The dialogs of lots and periods. The lots that the note had are gone through one by one; ending
// the periods of a lot drops its further rows, ending the lots those from there on.
class CatenaPdl {
 public:
  CatenaPdl(RunState& run, DatiPdl& datiDelCaso)
      : stato(run), dati(datiDelCaso), vecchi(LottiConRighe(datiDelCaso)) {
    dati.Lotti.clear();
    dati.Righe.clear();
    dati.PeriodoMassimo = "1";
  }

  void Chiedi();

 private:
  void ChiediPeriodi(const PostoLotto& posto, const RigheDelLotto& righe, const RigaPdl& modello);
  std::size_t RigheDopo(std::size_t lotto) const;

  RunState& stato;
  DatiPdl& dati;
  std::vector<RigheDelLotto> vecchi;
};

void CatenaPdl::Chiedi() {
  FrmGenClasse classi(stato, false);
  for (std::size_t i = 0;; ++i) {
    const PostoLotto posto{i + 1, vecchi.size()};
    const RigheDelLotto righe = posto.Nuovo() ? RigheDelLotto() : vecchi[i];
    if (i >= kLottiPdlMassimi)
      classi.Rifiuto = OltreIlMassimo(kLottiPdlMassimi, "LOTTI");
    else if (posto.Nuovo() && dati.Righe.size() >= kRighePdlMassime)
      classi.Rifiuto = OltreIlMassimo(kRighePdlMassime, "RIGHE IN TUTTI I LOTTI");
    RigaPdl modello;
    if (!righe.empty()) {
      modello.Classe = righe.front().Classe;
      modello.Categoria = righe.front().Categoria;
    }
    if (!ChiediClasse(stato, classi, posto, modello.Classe, modello.Categoria)) return;
    ChiediPeriodi(posto, righe, modello);
  }
}

// How many rows the lots behind this one still have: a new row must leave them their place.
std::size_t CatenaPdl::RigheDopo(std::size_t lotto) const {
  std::size_t righe = 0;
  for (std::size_t i = lotto; i < vecchi.size(); ++i) righe += vecchi[i].size();
  return righe;
}

void CatenaPdl::ChiediPeriodi(const PostoLotto& posto, const RigheDelLotto& righe,
                              const RigaPdl& modello) {
  const std::string dove = DoveSiamo(posto, modello.Classe, modello.Categoria);
  LottoPdl lotto;
  for (std::size_t j = 0; j < kPeriodiPdl; ++j) {
    const bool esiste = j < righe.size();
    RigaPdl riga = esiste ? righe[j] : RigaPdl();
    const int ultimo = lotto.PeriodoDelLotto.empty() ? 0 : lotto.PeriodoDelLotto.back();
    FrmPdlTariffe form(stato.player, dove, ultimo, riga.PeriodoTariffario, esiste);
    if (!esiste && dati.Righe.size() + RigheDopo(posto.numero) >= kRighePdlMassime)
      form.Rifiuto = OltreIlMassimo(kRighePdlMassime, "RIGHE IN TUTTI I LOTTI");
    stato.player.Show(form);
    if (form.Tariffa == "0") break;
    riga.Classe = modello.Classe;
    riga.Categoria = modello.Categoria;
    riga.PeriodoTariffario = form.Tariffa;
    dati.PeriodoMassimo = std::max(dati.PeriodoMassimo, form.Tariffa);
    const auto periodo = static_cast<std::int16_t>(form.Tariffa[0] - '0');
    ChiediRiga(stato, dove + "   " + NomePeriodoTariffario(periodo), dati.Righe, riga);
    dati.Righe.push_back(std::move(riga));
    lotto.PeriodoDelLotto.push_back(periodo);
  }
  lotto.UltimaRiga = static_cast<std::int16_t>(dati.Righe.size());
  dati.Lotti.push_back(std::move(lotto));
}

}  // namespace

void InputPdl(RunState& stato) {
  DatiPdl dati;
  IniziaInput(stato, dati);
  FrmGenTipologia tipologia(stato.player, dati.TipoParcella);
  stato.player.Show(tipologia);
  if (!tipologia.TipodiUscita) return;
  dati.TipoParcella = tipologia.TipoParcella;
  dati.IncaricoParziale =
      ChiediSiNo(stato.player, "PARCELLA PER PROGETTAZIONE E D.L.",
                 "MAGGIORAZIONE PER INCARICO PARZIALE ?", kAvvertenza, dati.IncaricoParziale);
  CatenaPdl(stato, dati).Chiedi();
  const bool conDirezione =
      std::ranges::any_of(dati.Righe, [](const RigaPdl& r) { return r.ImportoDirezione != 0; });
  dati.CertificatoRegolare =
      conDirezione
          ? ChiediSiNo(stato.player, "ALTRE PRESTAZIONI",
                       "COLLAUDO o CERTIFICATO REGOLARE ESECUZIONE ?", "", dati.CertificatoRegolare)
          : "NO";
  ConcludiInput(stato, dati);
}

}  // namespace orm
