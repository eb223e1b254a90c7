#include "structures/steel_beams/panel_results.h"

#include <utility>

namespace orm {

PannelloRisultatiPutrelle::PannelloRisultatiPutrelle(Form& form, std::vector<std::string> voci)
    : form_(form), voci_(std::move(voci)) {
  for (Schiera<FloatBox>* colonna : {&cdVAmmessi, &cdRisultati})
    for (FloatBox& valore : *colonna) valore.SetReadOnly(true);
}

Layout PannelloRisultatiPutrelle::Contents(Label& esito) {
  std::vector<Layout> righe{Row({lblColonne.begin(), lblColonne.end()})};
  for (std::size_t i = 0; i < cdRisultati.size(); ++i)
    righe.push_back(Row({cdVAmmessi[i], cdRisultati[i]}));
  return Group(fraRisultati, {Fields(std::move(righe)), esito});
}

void PannelloRisultatiPutrelle::Azzera() {
  for (Schiera<FloatBox>* colonna : {&cdVAmmessi, &cdRisultati})
    for (FloatBox& valore : *colonna) {
      valore.SetValue(0);
      valore.SetWarning(false);
    }
}

bool PannelloRisultatiPutrelle::Mostra(std::initializer_list<ValoreVerificato> valori) {
  std::size_t i = 0;
  bool entro = true;
  for (const auto& [ammesso, calcolato] : valori) {
    cdVAmmessi[i].SetValue(ammesso);
    cdVAmmessi[i].SetShown(FormatPattern(ammesso, "###0.00"));
    cdRisultati[i].SetValue(calcolato);
    cdRisultati[i].SetShown(FormatPattern(calcolato, "###0.00"));
    cdRisultati[i++].SetWarning(calcolato > ammesso);
    entro = entro && calcolato <= ammesso;
  }
  return entro;
}

std::vector<Spiegazione> PannelloRisultatiPutrelle::Spiegate(
    std::initializer_list<Catena> catene) const {
  std::vector<Spiegazione> spiegate;
  for (const Catena& catena : catene)
    spiegate.push_back(Risultato(cdRisultati[spiegate.size()].Caption(), catena));
  return spiegate;
}

}  // namespace orm
