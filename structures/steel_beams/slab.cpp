#include "structures/steel_beams/slab.h"

#include <algorithm>

#include "structures/solvers/working_stress.h"

namespace orm {

bool AltezzaSolaioInsufficiente(double luce, double altezza) {
  return luce * 100.0 / 25.0 > altezza;
}

double MomentoSolaioP(double luce, double q, double cMezzeria, double cIncastro) {
  double momento = 0;
  for (const double c : {cMezzeria, cIncastro})
    if (c != 0) momento = std::max(momento, luce * luce * q / c);
  return momento;
}

double InerziaComposta(const DatiSolaioP& dati) {
  const Profilo profilo = ProfiloNP(dati.putrella);
  const double h = AltezzaProfilo(dati.putrella);
  const double t = std::max(dati.altezza - h / 10, 0.0);
  const double Bc = Interasse(dati);
  const double Ac = t * Bc / kModuloN;
  const double Jc = (t * t * t * Bc / 12) / kModuloN;
  const double y = ((h / 20 + t) * profilo.A + (t * Ac) / 2) / (profilo.A + Ac);
  const double alCls = y - t / 2, allaPutrella = (h / 20 + t) - y;
  return Jc + profilo.J + alCls * alCls * Ac + allaPutrella * allaPutrella * profilo.A;
}

bool IncastroEccessivo(double cIncastro) { return cIncastro > 0 && cIncastro < 12; }

double FrecciaUnitaria(double luce, double cIncastro) {
  const double k = cIncastro == 0 ? 43 : 43 + 48 / cIncastro;
  const double L = luce * 100;
  return ((48 - k) / 384) * (L * L * L * L) / kModuloAcciaio;
}

RisultatiSolaioP VerificaSolaioP(const DatiSolaioP& dati) {
  const double L = dati.lunghezza;
  const CarichiPutrella carichi = CarichiSullaPutrella(dati);
  const double q = carichi.qp + carichi.qa + carichi.d;
  const double M = MomentoSolaioP(L, q, dati.cMezzeria, dati.cIncastro);

  RisultatiSolaioP risultati{VerificaTensioni(dati, q * L / 2, M), {}, {}};
  const double f0 = FrecciaUnitaria(L, dati.cIncastro), J = InerziaComposta(dati);
  risultati.totale = {(q / 100) * f0 / J, L * 100 / kFrecciaTotaleAmmessa};
  risultati.permanente = {((carichi.qp + carichi.d) / 100) * f0 / J,
                          L * 100 / kFrecciaPermanenteAmmessa};
  return risultati;
}

}  // namespace orm
