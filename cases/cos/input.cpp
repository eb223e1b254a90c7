#include "cases/cos/config.h"
#include "cases/cos/cos.h"
#include "cases/cos/form.h"
#include "tariff/forms/form_amounts.h"
#include "tariff/forms/form_question.h"
#include "tariff/forms/input_step.h"
#include "tariff/forms/row_chain.h"
#include "tariff/law/tariff_tables.h"

namespace orm {
namespace {

// The lots of the revision. In "CS1" a lot has a row for each period; in "CS2" one row, of none.
class CatenaCos : public CatenaClassi<RigaCos> {
 public:
  CatenaCos(RunState& run, DatiCos& dati, bool conPeriodi)
      : CatenaClassi(run, dati.Lotti, dati.Righe,
                     {kLottiCosMassimi, kRigheCosMassime, conPeriodi ? kPeriodiCos : 1},
                     &RigaCos::Periodo),
        periodi(conPeriodi) {}

 private:
  std::optional<std::int16_t> ChiediPeriodo(const PostoPeriodo& qui, const RigaCos& riga) override {
    return periodi ? CatenaClassi::ChiediPeriodo(qui, riga) : std::int16_t{0};
  }

  void ChiediRiga(const PostoPeriodo& qui, std::int16_t periodo, RigaCos& riga,
                  const std::vector<RigaCos>&) override {
    Intesta(qui, periodo, riga);
    // Each lot is summed by itself.
    FrmGenUnoImporti form(stato, "LAVORI VERIFICATI", "Importo del Lotto",
                          Chiesto(riga, &RigaCos::ImportoVerificato, qui.altreDelLotto,
                                  {ConNumero(qui.lotto, "LOTTO"), "GLI ALTRI PERIODI"}));
    form.SetClasseCategoria("CLASSE / CATEGORIA", riga.Categoria.empty()
                                                      ? riga.Classe
                                                      : riga.Classe + " / " + riga.Categoria);
    if (periodo != 0) form.SetTariffa("PERIODO TARIFFARIO", NomePeriodoTariffario(periodo));
    stato.player.Show(form);
  }

  const bool periodi;
};

}  // namespace

void InputCos(RunState& stato) {
  const TestataCos testata = LeggiTestataCos(stato.folder, stato.CasoDiParcella);
  DatiCos dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  FrmCosDati form(stato, testata, dati);
  stato.player.Show(form);
  if (!form.Confermato()) return;
  dati.RevisioneCalcoli =
      ChiediSiNo(stato.player, "COLLAUDO STATICO", "revisione dei calcoli",
                 "REVISIONE DEI CALCOLI DI STABILITÁ ?", "", dati.RevisioneCalcoli);
  if (dati.RevisioneCalcoli == "SI") CatenaCos(stato, dati, stato.CasoDiParcella == "CS1").Chiedi();
  ConcludiInput(stato, dati);
}

}  // namespace orm
