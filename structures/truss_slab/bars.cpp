#include "structures/truss_slab/bars.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "runtime/numbers.h"
#include "structures/truss_slab/tables.h"
#include "tariff/money.h"

namespace orm {
namespace {
double SuMultiploDi5(double cm) { return ArrotondaA5(cm, 0, 1); }
}  // namespace

SceltaFerro LeggiSceltaFerro(std::string_view testo) { return ParseNumber(testo); }

double AreaDaDiametro(double diametro) {
  for (const Tondino& tondino : kTondini)
    if (tondino.diametro == diametro) return tondino.area;
  return 0;
}

double DiametroDaArea(double area) {
  for (const Tondino& tondino : kTondini)
    if (tondino.area == area) return tondino.diametro;
  return 0;
}

double AreaFerro(const GenereFerro& genere, const SceltaFerro& scelta, int k) {
  if (scelta) return AreaDaDiametro(*scelta);
  if (k < genere.primo) return 0;
  return kTondini[static_cast<std::size_t>(std::min(k - genere.primo, genere.quanti - 1))].area;
}

double AncoraggioCampata(double V, double A, double diametro, double tb) {
  return SuMultiploDi5(diametro * (V / A) / (40 * tb)) / 100;
}

double AncoraggioMoncone(double diametro, double sigma, double tb) {
  // The hook counts for 20 diameters; what is left may not fall below a third of the whole, 10
  // diameters, 15 cm. A length raised to one of these has its hook included.
  const double lb = diametro * sigma / (40 * tb);
  const double uncino = 20 * (diametro / 10);
  double ld = lb;
  if (ld - uncino < lb / 3) ld = lb / 3;
  if (ld - uncino < 10 * (diametro / 10)) ld = 10 * (diametro / 10);
  if (ld - uncino < 15) ld = 15;
  if (ld == lb) ld = ld - uncino;
  return SuMultiploDi5(ld) / 100;
}

double MinimoAncoraggio(double x) { return SuMultiploDi5(std::max(x, 15.0)) / 100; }

double LunghezzaFerroIntegrativo(double L0, double a, double totale, double diametro) {
  if (a == 0) return 0;
  return L0 * std::sqrt(a / totale) + 2 * (diametro / 10 * 100 / 4) / 100;
}

double DistanzaDiCaduta(double V, double q, double M, double Lc) {
  const double root = V * V - 2 * q * M;
  return root < 0 ? Lc / 2 : (V - std::sqrt(root)) / q;
}

}  // namespace orm
