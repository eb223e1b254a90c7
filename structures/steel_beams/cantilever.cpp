#include "structures/steel_beams/cantilever.h"

namespace orm {

VerificaPutrella VerificaSbalzoP(const DatiSbalzoP& dati) {
  const double L = dati.lunghezza, i = Interasse(dati);
  const auto& [kv, s] = dati.sisma;
  Catena passi;
  const CarichiPutrella carichi = CarichiSullaPutrella(dati, passi);
  const auto annota = [&passi](const char* regola, const Conto& conto, const char* unita) {
    return Annota(passi, regola, conto, unita);
  };

  if (kv != 0)
    passi.push_back(
        PassoDiParole("Zona sismica: I x 0,4 = " + CifraEsatta(kv) + ", s = " + CifraEsatta(s)));
  const double e1 = annota("Azione sismica verticale sui carichi ripartiti, (s qa + qp) I 0,4, e",
                           (Conto(s) * carichi.qa + carichi.qp) * kv, "Kg/ml");
  const double q1 =
      annota("Carichi ripartiti, qp + qa + e, q1", Conto(carichi.qp) + carichi.qa + e1, "Kg/ml");
  const double d = annota("Carichi sulla putrella con l'azione sismica, d + I 0,4 d, d1",
                          Conto(carichi.d) + Conto(kv) * carichi.d, "Kg/ml");
  const double q = annota("Carico sulla putrella, q1 + d1, q", Conto(q1) + d, "Kg/ml");
  const double Pe =
      annota("Carico di estremità sulla putrella, P", Conto(dati.caricoEstremo) * i / 100, "Kg");
  const double PeSismico = annota("Sua azione sismica, I 0,4 P, Ps", Conto(kv) * Pe, "Kg");
  const double C = annota("Coppia di estremità sulla putrella, C",
                          Conto(dati.coppiaEstrema) * i / 100, "Kg x m");

  const Conto V = Conto(L) * q + Pe + PeSismico;
  const Conto M = Conto(L) * (Conto(Pe) + PeSismico) + Conto(L) * L * (Conto(q) * 0.5) + C;
  return VerificaTensioni(dati, passi, V, M);
}

}  // namespace orm
