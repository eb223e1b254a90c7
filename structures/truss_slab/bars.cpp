#include "structures/truss_slab/bars.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "runtime/explanation/steps.h"
#include "runtime/numbers.h"
#include "structures/truss_slab/tables.h"
#include "tariff/money.h"

namespace orm {
namespace {

double Passo(Catena* passi, const char* regola, const Conto& conto, const char* unita) {
  if (passi != nullptr) Annota(*passi, regola, conto, unita);
  return conto;
}

double SuMultiploDi5(double cm, Catena* passi) {
  const double intera = ArrotondaA5(cm, 0, 1);
  if (intera != cm) Passo(passi, "Il multiplo di 5 cm che basta", Conto(5) * (intera / 5), "cm");
  return intera;
}

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

double AncoraggioCampata(double V, double A, double diametro, double tb, Catena* passi) {
  const double l = Passo(passi, "Ancoraggio, Ø (V / A) / (40 τ), τ di aderenza",
                         Conto(diametro) * (Conto(V) / A) / (Conto(40) * tb), "cm");
  return SuMultiploDi5(l, passi) / 100;
}

double AncoraggioMoncone(double diametro, double sigma, double tb, Catena* passi) {
  // The hook counts for 20 diameters; what is left may not fall below a third of the whole, 10
  // diameters, 15 cm. A length raised to one of these has its hook included.
  const double lb = Passo(
      passi, "Ancoraggio intero, lb = Ø σ / (40 τ), σ dell'acciaio all'appoggio, τ di aderenza",
      Conto(diametro) * sigma / (Conto(40) * tb), "cm");
  const double uncino =
      Passo(passi, "L'uncino vale 20 diametri", Conto(20) * (Conto(diametro) / 10), "cm");
  Conto ld = lb;
  const char* regola = "Ne resta, tolto l'uncino";
  const auto alza = [&](const Conto& minimo, const char* quale) {
    if (ld - uncino >= minimo) return;
    ld = minimo;
    regola = quale;
  };
  alza(Conto(lb) / 3, "Tolto l'uncino ne resterebbe meno di un terzo, che si prende");
  alza(Conto(10) * (Conto(diametro) / 10),
       "Tolto l'uncino ne resterebbero meno di 10 diametri, che si prendono");
  alza(15, "Tolto l'uncino ne resterebbero meno di 15 cm, che si prendono");
  if (ld == lb) ld = Conto(lb) - uncino;
  return SuMultiploDi5(Passo(passi, regola, ld, "cm"), passi) / 100;
}

double MinimoAncoraggio(double x, Catena* passi) {
  if (x < 15) Passo(passi, "Non meno di 15 cm", 15, "cm");
  return SuMultiploDi5(std::max(x, 15.0), passi) / 100;
}

double LunghezzaFerroIntegrativo(double L0, double a, double totale, double diametro,
                                 Catena* passi) {
  if (a == 0) return 0;
  const double lunghezza = L0 * std::sqrt(a / totale) + 2 * (diametro / 10 * 100 / 4) / 100;
  if (passi != nullptr)
    passi->push_back(
        {.regola = "Ferro che si ferma dove il momento lo permette, L0 radq(a / (a + b)), e 25 "
                   "diametri a ogni capo",
         .conto = ScriviConto("{} x radq({} / {}) + 2 x ({} / 10 x 100 / 4) / 100",
                              {L0, a, totale, diametro}),
         .risultato = lunghezza,
         .unita = "m"});
  return lunghezza;
}

double DistanzaDiCaduta(double V, double q, double M, double Lc, Catena* passi) {
  const double root = V * V - 2 * q * M;
  if (root < 0)
    return Passo(passi, "Il momento non si annulla: metà della luce di calcolo, x = L / 2",
                 Conto(Lc) / 2, "m");
  const double x = (V - std::sqrt(root)) / q;
  if (passi != nullptr)
    passi->push_back(
        {.regola = "Distanza a cui il momento è sceso di M, x = (V - radq(V² - 2 q M)) / q",
         .conto = ScriviConto("({} - radq({} x {} - 2 x {} x {})) / {}", {V, V, V, q, M, q}),
         .risultato = x,
         .unita = "m"});
  return x;
}

}  // namespace orm
