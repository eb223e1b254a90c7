#include "cases/cos/config.h"
#include "cases/cos/cos.h"
#include "cases/cos/form.h"
#include "runtime/numbers.h"
#include "tariff/forms/form_amount.h"
#include "tariff/forms/form_pdl_period.h"
#include "tariff/forms/form_question.h"
#include "tariff/forms/input_step.h"
#include "tariff/forms/row_chain.h"
#include "tariff/law/tariff_tables.h"

namespace orm {
namespace {

// The lots of the revision. In "CS1" a lot has a row for each period; in "CS2" one row, of none.
class CatenaCos : public CatenaRighe<RigaCos> {
 public:
  CatenaCos(RunState& run, DatiCos& dati, bool conPeriodi)
      : CatenaRighe(dati.Lotti, dati.Righe,
                    {kLottiCosMassimi, kRigheCosMassime, conPeriodi ? kPeriodiCos : 1}),
        stato(run),
        periodi(conPeriodi) {}

 private:
  bool ChiediTestata(const PostoLotto& posto, const std::string& rifiuto,
                     RigaCos& modello) override {
    classi.Rifiuto = rifiuto;
    return ChiediClasse(stato, classi, posto, modello.Classe, modello.Categoria);
  }

  std::optional<std::int16_t> ChiediPeriodo(const PostoRiga& posto, const RigaCos& riga) override {
    if (!periodi) return std::int16_t{0};
    FrmPdlTariffe form(stato.player,
                       DoveSiamo(posto.lotto, posto.modello.Classe, posto.modello.Categoria),
                       posto.ultimo, riga.Periodo, posto.esiste);
    form.Rifiuto = posto.rifiuto;
    stato.player.Show(form);
    return form.Periodo();
  }

  void ChiediRiga(const PostoRiga& posto, std::int16_t periodo, RigaCos& riga) override {
    riga.Classe = posto.modello.Classe;
    riga.Categoria = posto.modello.Categoria;
    riga.Periodo = periodo == 0 ? "" : NumberText(periodo);
    FrmGenUnoImporti form(stato, "LAVORI VERIFICATI", "Importo del Lotto", riga.ImportoVerificato);
    form.SetClasseCategoria("CLASSE / CATEGORIA", riga.Categoria.empty()
                                                      ? riga.Classe
                                                      : riga.Classe + " / " + riga.Categoria);
    if (periodo != 0) form.SetTariffa("PERIODO TARIFFARIO", NomePeriodoTariffario(periodo));
    stato.player.Show(form);
    if (form.Confermato()) riga.ImportoVerificato = form.Importo();
  }

  RunState& stato;
  const bool periodi;
  FrmGenClasse classi{stato, false};
};

}  // namespace

void InputCos(RunState& stato) {
  const TestataCos testata = LeggiTestataCos(stato.folder, stato.CasoDiParcella);
  DatiCos dati;
  IniziaInput(stato, dati);
  FrmCosDati form(stato, testata, dati);
  stato.player.Show(form);
  if (!form.Confermato()) return;
  dati.ImportoCS = form.ImportoCS;
  dati.Maggiorazione = form.Maggiorazione;
  dati.ImportoTotaleCS = 0;
  for (const double importo : dati.ImportoCS) dati.ImportoTotaleCS += importo;
  dati.RevisioneCalcoli =
      ChiediSiNo(stato.player, "COLLAUDO STATICO", "REVISIONE DEI CALCOLI DI STABILITÁ ?", "",
                 dati.RevisioneCalcoli);
  if (dati.RevisioneCalcoli == "SI") CatenaCos(stato, dati, stato.CasoDiParcella == "CS1").Chiedi();
  ConcludiInput(stato, dati);
}

}  // namespace orm
