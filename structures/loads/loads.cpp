#include "structures/loads/loads.h"

#include <algorithm>

namespace orm {

double CaricoNeve(double base, double altezza, double inclinazione) {
  const double h = altezza > 300 ? altezza - 300 : 0;
  const double a = inclinazione > 20 ? inclinazione - 20 : 0;
  return std::max(1.0 - a * 0.025, 0.0) * (h * 0.15 + base);
}

double CaricoTramezzi(double area, double lunghezza, double altezza, double peso) {
  return area == 0 ? 0 : lunghezza * altezza * peso / area;
}

double CaricoRiempimento(double pesoSpecifico, double altezza) {
  return pesoSpecifico * altezza / 100;
}

double CaricoRiempimentoMisto(double pesoSpecifico, double altezza, double spazio,
                              const Tavellone& tavellone) {
  return pesoSpecifico * (altezza * spazio - tavellone.altezza * tavellone.lunghezza) /
             (100 * spazio) +
         tavellone.peso * tavellone.lunghezza / spazio;
}

double CoppiaCorrimano(double spinta, double altezza) { return spinta * altezza; }

}  // namespace orm
