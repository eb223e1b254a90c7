#include "structures/steel_beams/cantilever.h"

namespace orm {

VerificaPutrella VerificaSbalzoP(const DatiSbalzoP& dati) {
  const double L = dati.lunghezza, i = Interasse(dati);
  const auto& [kv, s] = dati.sisma;
  const CarichiPutrella carichi = CarichiSullaPutrella(dati);

  const double e1 = (s * carichi.qa + carichi.qp) * kv;
  const double q1 = carichi.qp + carichi.qa + e1;
  const double d = carichi.d + kv * carichi.d;
  const double q = q1 + d;
  const double Pe = dati.caricoEstremo * i / 100;
  const double PeSismico = kv * Pe;
  const double C = dati.coppiaEstrema * i / 100;

  const double V = L * q + Pe + PeSismico;
  const double M = L * (Pe + PeSismico) + L * L * (q * 0.5) + C;
  return VerificaTensioni(dati, V, M);
}

}  // namespace orm
