#include "structures/steel_beams/beams.h"

#include <algorithm>

namespace orm {

double Interasse(const DatiPutrelle& dati) {
  return dati.tavellone.lunghezza + ProfiloNP(dati.putrella).b / 10;
}

double SpazioRiempimento(const DatiPutrelle& dati) { return dati.tavellone.lunghezza; }

double AltezzaRiempimento(const DatiPutrelle& dati) {
  return std::max(AltezzaProfilo(dati.putrella) / 10 - dati.tavellone.altezza, 0.0);
}

CarichiPutrella CarichiSullaPutrella(const DatiPutrelle& dati) {
  const double i = Interasse(dati);
  double permanenti = 0;
  for (std::size_t k = 0; k < Sovraccarico; ++k) permanenti += dati.ripartiti[k];
  return {dati.ripartiti[Sovraccarico] * i / 100, permanenti * i / 100,
          dati.pesoProprio + dati.diretto};
}

VerificaPutrella VerificaTensioni(const DatiPutrelle& dati, double taglio, double momento) {
  return {taglio, momento, TensioniNelProfilo(dati.putrella, momento, taglio),
          TensioniAcciaio(dati.acciaio)};
}

}  // namespace orm
