#include <algorithm>

#include "cases/pdl/data.h"
#include "cases/pdl/pdl.h"
#include "cases/pdl/row_chain.h"
#include "tariff/forms/form_kind.h"
#include "tariff/forms/form_question.h"
#include "tariff/forms/input_step.h"
#include "tariff/forms/row_chain.h"
#include "tariff/law/tariff_tables.h"

namespace orm {
namespace {

// The lots of the note, each with a row for every period.
class CatenaPdl : public CatenaClassi<RigaPdl> {
 public:
  CatenaPdl(RunState& run, DatiPdl& dati)
      : CatenaClassi(run, dati.Lotti, dati.Righe, {kLottiPdlMassimi, kRighePdlMassime, kPeriodiPdl},
                     &RigaPdl::PeriodoTariffario),
        PeriodoMassimo(dati.PeriodoMassimo) {
    PeriodoMassimo = "1";
  }

 private:
  void ChiediRiga(const PostoPeriodo& qui, std::int16_t periodo, RigaPdl& riga,
                  const std::vector<RigaPdl>& altre) override {
    Intesta(qui, periodo, riga);
    PeriodoMassimo = std::max(PeriodoMassimo, riga.PeriodoTariffario);
    orm::ChiediRiga(stato, {ConNumero(qui.lotto, "LOTTO"), qui.posto.Nuova()}, altre, riga);
  }

  std::string& PeriodoMassimo;
};

}  // namespace

void InputPdl(RunState& stato) {
  DatiPdl dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  if (!ChiediTipologia(stato.player, dati.TipoParcella, true)) return;
  dati.IncaricoParziale = ChiediSiNo(
      stato.player, "PARCELLA PER PROGETTAZIONE E D.L.", kPassoParziale, kMaggiorazioneParziale,
      std::string("ATTENZIONE !\n") + kAvvertenzaParziale, dati.IncaricoParziale);
  CatenaPdl(stato, dati).Chiedi();
  const bool conDirezione =
      std::ranges::any_of(dati.Righe, [](const RigaPdl& r) { return r.ImportoDirezione != 0; });
  dati.CertificatoRegolare =
      ChiediCertificato(stato.player, "ALTRE PRESTAZIONI", conDirezione, dati.CertificatoRegolare);
  ConcludiInput(stato, dati);
}

}  // namespace orm
