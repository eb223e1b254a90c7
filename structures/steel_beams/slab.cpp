#include "structures/steel_beams/slab.h"

#include <algorithm>

#include "structures/solvers/working_stress.h"

namespace orm {

bool AltezzaSolaioInsufficiente(double luce, double altezza) {
  return luce * 100.0 / 25.0 > altezza;
}

Conto MomentoSolaioP(double luce, double q, double cMezzeria, double cIncastro) {
  Conto momento;
  for (const double c : {cMezzeria, cIncastro}) {
    if (c == 0) continue;
    const Conto uno = Conto(luce) * luce * q / c;
    if (uno > momento) momento = uno;
  }
  return momento;
}

double InerziaComposta(const DatiSolaioP& dati, Catena& passi) {
  const Profilo profilo = ProfiloNP(dati.putrella);
  const double h = AltezzaProfilo(dati.putrella);
  const Conto sopra = Conto(dati.altezza) - Conto(h) / 10;
  const double t = Annota(passi, "Spessore del calcestruzzo sopra la putrella, t",
                          sopra < 0 ? Conto(0.0) : sopra, "cm");
  const double Bc = Interasse(dati);
  const double Ac =
      Annota(passi, "Calcestruzzo, largo quanto l'interasse, reso acciaio: Ac = t i / 15",
             Conto(t) * Bc / kModuloN, "cmq");
  const double Jc = Annota(passi, "Suo momento d'inerzia: Jc = t³ i / 12 / 15",
                           (Conto(t) * t * t * Bc / 12) / kModuloN, "cm4");
  const double y = Annota(
      passi, "Baricentro dall'alto: y = ((h / 20 + t) A + t Ac / 2) / (A + Ac)",
      ((Conto(h) / 20 + t) * profilo.A + (Conto(t) * Ac) / 2) / (Conto(profilo.A) + Ac), "cm");
  const Conto alCls = Conto(y) - Conto(t) / 2, allaPutrella = (Conto(h) / 20 + t) - y;
  return Annota(
      passi,
      "Momento d'inerzia di putrella e calcestruzzo: Jt = Jc + J + (y - t / 2)² Ac + "
      "(h / 20 + t - y)² A",
      Conto(Jc) + profilo.J + alCls * alCls * Ac + allaPutrella * allaPutrella * profilo.A, "cm4");
}

bool IncastroEccessivo(double cIncastro) { return cIncastro > 0 && cIncastro < 12; }

Conto FrecciaUnitaria(double luce, double cIncastro) {
  const Conto k = cIncastro == 0 ? Conto(43) : Conto(43) + Conto(48) / cIncastro;
  const double L = luce * 100;
  return ((Conto(48) - k) / 384) * (Conto(L) * L * L * L) / kModuloAcciaio;
}

namespace {

Freccia FrecciaPer(const char* carico, const Conto& q, double f0, double J, double luce,
                   double parte, const Catena& comuni) {
  Freccia freccia{0, luce * 100 / parte, comuni};
  const double al = Annota(freccia.passi, std::string("Carico") + carico, q, "Kg/ml");
  const Conto f = (Conto(al) / 100) * f0 / J;
  freccia.calcolata = f;
  freccia.passi.push_back(
      PassoVerificato("Freccia: f = q / 100 x f0 / Jt", f, "cm", freccia.accettata));
  return freccia;
}

}  // namespace

RisultatiSolaioP VerificaSolaioP(const DatiSolaioP& dati) {
  const double L = dati.lunghezza;
  Catena passi;
  const CarichiPutrella carichi = CarichiSullaPutrella(dati, passi);
  const Conto somma = Conto(carichi.qp) + carichi.qa + carichi.d;
  Catena tensioni = passi;
  const double q = Annota(tensioni, "Carico totale, qp + qa + d, q", somma, "Kg/ml");
  const Conto M = MomentoSolaioP(L, q, dati.cMezzeria, dati.cIncastro);

  RisultatiSolaioP risultati{VerificaTensioni(dati, tensioni, Conto(q) * L / 2, M), {}, {}};
  const double f0 = Annota(passi,
                           "Freccia per 1 Kg/cm e 1 cm4: f0 = (48 - k) / 384 x L⁴ / E, con "
                           "k = 43 + 48 / coefficiente dell'incastro",
                           FrecciaUnitaria(L, dati.cIncastro), "cm");
  const double J = InerziaComposta(dati, passi);
  risultati.totale =
      FrecciaPer(" totale, qp + qa + d, q", somma, f0, J, L, kFrecciaTotaleAmmessa, passi);
  risultati.permanente = FrecciaPer(" permanente, qp + d, q", Conto(carichi.qp) + carichi.d, f0, J,
                                    L, kFrecciaPermanenteAmmessa, passi);
  return risultati;
}

}  // namespace orm
