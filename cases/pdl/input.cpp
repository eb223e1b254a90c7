#include <algorithm>

#include "cases/pdl/data.h"
#include "cases/pdl/pdl.h"
#include "cases/pdl/row_chain.h"
#include "runtime/numbers.h"
#include "tariff/forms/form_kind.h"
#include "tariff/forms/form_pdl_period.h"
#include "tariff/forms/form_question.h"
#include "tariff/forms/input_step.h"
#include "tariff/forms/row_chain.h"
#include "tariff/law/tariff_tables.h"

namespace orm {
namespace {

constexpr const char* kAvvertenza =
    "ATTENZIONE !\n"
    "La procedura non esegue alcun controllo di leggittimità : \n"
    "per cui se indebitamente richiesta, la maggiorazione potrebbe essere applicata "
    "contemporaneamente sia alla Progettazione sia alla Direzione Lavori.";

// The lots of the note, each with a row for every period.
class CatenaPdl : public CatenaRighe<RigaPdl> {
 public:
  CatenaPdl(RunState& run, DatiPdl& datiDelCaso)
      : CatenaRighe(datiDelCaso.Lotti, datiDelCaso.Righe,
                    {kLottiPdlMassimi, kRighePdlMassime, kPeriodiPdl}),
        stato(run),
        PeriodoMassimo(datiDelCaso.PeriodoMassimo) {
    PeriodoMassimo = "1";
  }

 private:
  bool ChiediTestata(const PostoLotto& posto, const std::string& rifiuto,
                     RigaPdl& modello) override {
    classi.Rifiuto = rifiuto;
    return ChiediClasse(stato, classi, posto, modello.Classe, modello.Categoria);
  }

  static std::string Dove(const PostoRiga& posto) {
    return DoveSiamo(posto.lotto, posto.modello.Classe, posto.modello.Categoria);
  }

  std::optional<std::int16_t> ChiediPeriodo(const PostoRiga& posto, const RigaPdl& riga) override {
    FrmPdlTariffe form(stato.player, Dove(posto), posto.ultimo, riga.PeriodoTariffario,
                       posto.esiste);
    form.Rifiuto = posto.rifiuto;
    stato.player.Show(form);
    return form.Periodo();
  }

  void ChiediRiga(const PostoRiga& posto, std::int16_t periodo, RigaPdl& riga) override {
    riga.Classe = posto.modello.Classe;
    riga.Categoria = posto.modello.Categoria;
    riga.PeriodoTariffario = NumberText(periodo);
    PeriodoMassimo = std::max(PeriodoMassimo, riga.PeriodoTariffario);
    orm::ChiediRiga(stato, Dove(posto) + "   " + NomePeriodoTariffario(periodo), Fatte(), riga);
  }

  RunState& stato;
  std::string& PeriodoMassimo;
  FrmGenClasse classi{stato, false};
};

}  // namespace

void InputPdl(RunState& stato) {
  DatiPdl dati;
  IniziaInput(stato, dati);
  FrmGenTipologia tipologia(stato.player, dati.TipoParcella);
  stato.player.Show(tipologia);
  if (!tipologia.Confermato()) return;
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
