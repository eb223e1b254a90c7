#include <cmath>

#include "cases/geo/forms.h"
#include "cases/geo/geo.h"
#include "runtime/numbers.h"
#include "tariff/forms/form_amount.h"
#include "tariff/forms/form_kind.h"
#include "tariff/forms/form_question.h"
#include "tariff/forms/input_step.h"
#include "tariff/forms/row_chain.h"

namespace orm {
namespace {

class CatenaGeo : public CatenaRighe<RigaGeo> {
 public:
  CatenaGeo(RunState& run, const TabelleGeo& tabelleGeo, DatiGeotecnici& datiDelCaso)
      : CatenaRighe(datiDelCaso.Gruppi, datiDelCaso.Righe,
                    {kGruppiGeoMassimi, kRigheGeoMassime, kPeriodiGeo, "GRUPPI"}),
        stato(run),
        tabelle(tabelleGeo),
        dati(datiDelCaso) {}

 private:
  static std::string Dove(const PostoLotto& posto, const RigaGeo& riga) {
    return DoveSiamo(posto, "GRUPPO") + "   SOTTOCLASSE " + riga.Sottoclasse;
  }

  bool ChiediTestata(const PostoLotto& posto, const std::string& rifiuto,
                     RigaGeo& modello) override {
    FrmGeoClassi form(stato.player, posto, modello.Sottoclasse);
    form.Rifiuto = rifiuto;
    stato.player.Show(form);
    if (form.Classe == "0") return false;
    modello.Sottoclasse = form.Classe;
    return true;
  }

  std::optional<std::int16_t> ChiediPeriodo(const PostoRiga& posto, const RigaGeo& riga) override {
    FrmGeoTariffe form(stato.player, tabelle, Dove(posto.lotto, posto.modello), posto.ultimo,
                       riga.Tariffa, posto.esiste);
    form.Rifiuto = posto.rifiuto;
    stato.player.Show(form);
    return form.Periodo();
  }

  void ChiediRiga(const PostoRiga& posto, std::int16_t periodo, RigaGeo& riga) override {
    riga.Sottoclasse = posto.modello.Sottoclasse;
    riga.Tariffa = NumberText(periodo);
    double progetto = 0, direzione = 0;
    for (const RigaGeo& r : Fatte()) {
      progetto += std::fabs(r.ImportoProgetto);
      direzione += std::fabs(r.ImportoDirezione);
    }
    const std::string nome = tabelle.NomePeriodo[static_cast<std::size_t>(periodo - 1)];
    FrmGeoImporti importi(stato, dati.TipoDiParcella, nome, riga, progetto, direzione);
    stato.player.Show(importi);
    riga.ImportoProgetto = importi.ImportoProgetto;
    riga.ImportoDirezione = importi.ImportoDirezione;
    FrmGeoPrestazio prestazioni(Dove(posto.lotto, riga) + "   " + nome, riga);
    stato.player.Show(prestazioni);
    riga.TipoDiPrestazione = prestazioni.TipoDiPrestazione;
    riga.StringaDellePrestazioni = prestazioni.StringaDellePrestazioni;
  }

  RunState& stato;
  const TabelleGeo& tabelle;
  const DatiGeotecnici& dati;
};

void ChiediMaggiorazione(Player& player, std::string& risposta) {
  risposta = ChiediSiNo(player, "PARCELLA PER PRESTAZIONI GEOTECNICHE",
                        "MAGGIORAZIONE PER INCARICO PARZIALE ?", "", risposta);
  if (risposta != "SI") return;
  player.Ask({"ATTENZIONE !",
              "La procedura non esegue alcun controllo di leggittimità : \n"
              "per cui se indebitamente richiesta, la maggiorazione potrebbe essere applicata "
              "contemporaneamente sia alla Progettazione sia alla Direzione Lavori.",
              MessageBox::Icon::Exclamation, MessageBox::Buttons::Ok});
}

}  // namespace

void DatiGEO(RunState& stato) {
  const TabelleGeo tabelle = LeggiTabelleGeo(stato.folder, 0);
  DatiGeotecnici dati;
  IniziaInput(stato, dati);
  FrmGenTipologia tipologia(stato.player, dati.TipoDiParcella);
  stato.player.Show(tipologia);
  if (!tipologia.Confermato()) return;
  dati.TipoDiParcella = tipologia.TipoParcella;
  ChiediMaggiorazione(stato.player, dati.MaggiorazioneParziale);
  CatenaGeo(stato, tabelle, dati).Chiedi();
  FrmGenUnoImporti costo(stato, "COSTO INDAGINI E PROVE", "Costo complessivo", dati.CostoIndagini);
  stato.player.Show(costo);
  if (costo.Confermato()) dati.CostoIndagini = costo.Importo();
  ConcludiInput(stato, dati);
}

}  // namespace orm
