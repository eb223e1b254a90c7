#include "structures/steel_beams/panel_results.h"

#include <vector>

#include "runtime/numbers.h"
#include "structures/numbered_controls.h"

namespace orm {
namespace {
const NumberLimits kValore{.least = -99999999.99, .most = 99999999.99, .decimals = 2};
}

RisultatiPutrelle::RisultatiPutrelle(Form& form, std::initializer_list<const char*> voci)
    : fraRisultati(form, "fraRisultati", "RISULTATI") {
  for (const char* colonna : {"", "VALORI AMMESSI", "CALCOLATI"})
    lblColonne.emplace_back(form, NomeIndicizzato("lblColonne", lblColonne.size()), colonna);
  for (const char* voce : voci) {
    const std::size_t numero = cdRisultati.size();
    cdVAmmessi.emplace_back(form, NomeIndicizzato("cdVAmmessi", numero), voce, kValore);
    cdRisultati.emplace_back(form, NomeIndicizzato("cdRisultati", numero), voce, kValore);
    cdVAmmessi.back().SetReadOnly(true);
    cdRisultati.back().SetReadOnly(true);
  }
}

Layout RisultatiPutrelle::Contents() {
  std::vector<Layout> righe{Row({lblColonne[0], lblColonne[1], lblColonne[2]})};
  for (std::size_t i = 0; i < cdRisultati.size(); ++i)
    righe.push_back(Row({cdVAmmessi[i], cdRisultati[i]}));
  return Group(fraRisultati, {Fields(std::move(righe))});
}

void RisultatiPutrelle::Azzera() {
  for (std::deque<FloatBox>* colonna : {&cdVAmmessi, &cdRisultati})
    for (FloatBox& valore : *colonna) {
      valore.SetValue(0);
      valore.SetWarning(false);
    }
}

void RisultatiPutrelle::Mostra(std::initializer_list<ValoreVerificato> valori) {
  std::size_t i = 0;
  for (const auto& [ammesso, calcolato] : valori) {
    cdVAmmessi[i].SetValue(ammesso);
    cdVAmmessi[i].SetShown(FormatPattern(ammesso, "###0.00"));
    cdRisultati[i].SetValue(calcolato);
    cdRisultati[i].SetShown(FormatPattern(calcolato, "###0.00"));
    cdRisultati[i++].SetWarning(calcolato > ammesso);
  }
}

}  // namespace orm
