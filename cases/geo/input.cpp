#include "cases/geo/forms.h"
#include "cases/geo/geo.h"
#include "runtime/numbers.h"
#include "tariff/forms/form_amounts.h"
#include "tariff/forms/form_kind.h"
#include "tariff/forms/form_question.h"
#include "tariff/forms/input_step.h"
#include "tariff/forms/row_chain.h"

namespace orm {
namespace {

class CatenaGeo : public CatenaRighe<RigaGeo> {
 public:
  CatenaGeo(RunState& run, const TabelleGeo& tabelleGeo, DatiGeotecnici& datiDelCaso)
      : CatenaRighe(run, datiDelCaso.Gruppi, datiDelCaso.Righe,
                    {kGruppiGeoMassimi, kRigheGeoMassime, kPeriodiGeo, "GRUPPI"}),
        tabelle(tabelleGeo),
        dati(datiDelCaso) {}

 private:
  std::vector<std::string> Dove(const PostoRiga& gruppo, const RigaGeo& modello) const override {
    return {DoveSiamo(gruppo, kGruppo), "sottoclasse " + modello.Sottoclasse};
  }

  std::string NomeDelPeriodo(std::int16_t periodo) const override {
    return tabelle.NomePeriodo[static_cast<std::size_t>(periodo - 1)];
  }

  bool ChiediTestata(const PostoRiga& lotto, RigaGeo& modello) override {
    return FrmGeoClassi(stato, lotto, modello.Sottoclasse).Chiedi();
  }

  std::optional<std::int16_t> ChiediPeriodo(const PostoPeriodo& qui, const RigaGeo& riga) override {
    return FrmTariffe(stato, TestiGeoTariffe(tabelle), qui.posto, qui.ultimo, riga.Tariffa)
        .ChiediPeriodo();
  }

  void ChiediRiga(const PostoPeriodo& qui, std::int16_t periodo, RigaGeo& riga,
                  const std::vector<RigaGeo>& altre) override {
    riga.Sottoclasse = qui.modello.Sottoclasse;
    riga.Tariffa = NumberText(periodo);
    const Addendi addendi{ConNumero(qui.lotto, "GRUPPO"), "GLI ALTRI GRUPPI E PERIODI"};
    FrmGeoImporti importi(stato, dati.TipoDiParcella, NomeDelPeriodo(periodo),
                          Chiesto(riga, &RigaGeo::ImportoProgetto, altre, addendi),
                          Chiesto(riga, &RigaGeo::ImportoDirezione, altre, addendi));
    stato.player.Show(importi);
    FrmGeoPrestazio prestazioni(riga);
    stato.player.Show(prestazioni);
  }

  const TabelleGeo& tabelle;
  const DatiGeotecnici& dati;
};

void ChiediMaggiorazione(Player& player, std::string& risposta) {
  risposta = ChiediSiNo(player, "PARCELLA PER PRESTAZIONI GEOTECNICHE", kPassoParziale,
                        kMaggiorazioneParziale, "", risposta);
  if (risposta == "SI")
    player.Ask({"ATTENZIONE !", kAvvertenzaParziale, MessageBox::Icon::Exclamation,
                MessageBox::Buttons::Ok});
}

}  // namespace

void DatiGEO(RunState& stato) {
  const TabelleGeo tabelle = LeggiTabelleGeo(stato.folder, 0);
  DatiGeotecnici dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  if (!ChiediTipologia(stato.player, dati.TipoDiParcella, true)) return;
  ChiediMaggiorazione(stato.player, dati.MaggiorazioneParziale);
  CatenaGeo(stato, tabelle, dati).Chiedi();
  FrmGenUnoImporti costo(stato, "COSTO INDAGINI E PROVE", "Costo complessivo",
                         {&dati.CostoIndagini});
  stato.player.Show(costo);
  ConcludiInput(stato, dati);
}

}  // namespace orm
