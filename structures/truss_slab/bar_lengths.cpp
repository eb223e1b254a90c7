#include "structures/truss_slab/bar_lengths.h"

#include <cmath>

#include "runtime/explanation/steps.h"
#include "structures/structural_report.h"

namespace orm {
namespace {

// What is shown of a length.
double Mostrata(Catena& passi, const char* regola, const Conto& m) {
  passi.push_back(PassoMostrato(regola, m.Semplice() ? "" : m.Testo(), m, "m", kDueDecimali));
  return m;
}

double LuceDiCalcolo(const RisultatiSolaioT& r) { return *r.carico.front().risultato; }

}  // namespace

void MisuraFerroCheCorre(Barra& barra, const Conto& A, const DatiSolaioT& dati,
                         const RisultatiSolaioT& r) {
  barra.passi = r.passiTaglio;
  Annota(barra.passi, "Acciaio che corre fino agli appoggi, A", A, "cmq");
  const double ancoraggio =
      AncoraggioCampata(r.taglio, A, barra.diametro, r.ammissibili.aderenza, &barra.passi);
  barra.lunghezza = Mostrata(barra.passi, "Luce netta e un ancoraggio a ogni capo",
                             2 * Conto(ancoraggio) + dati.luce);
}

void MisuraFerroInterrotto(Barra& barra, const Conto& a, const Conto& totale,
                           const DatiSolaioT& dati, const RisultatiSolaioT& r) {
  const double Lc = LuceDiCalcolo(r), L0 = std::sqrt(Lc * Lc * 8.0 / dati.cMez);
  barra.passi = {r.carico.front(),
                 {.regola = "Lunghezza della parabola dei momenti, L0 = radq(8 L² / " +
                            CifraEsatta(dati.cMez) + ")",
                  .conto = ScriviConto("radq({} x {} x 8 / {})", {Lc, Lc, dati.cMez}),
                  .risultato = L0,
                  .unita = "m"}};
  Annota(barra.passi, "Area per braccio di questo ferro e di quelli che si fermano prima, a", a,
         "cmc");
  Annota(barra.passi, "Area per braccio di tutto l'acciaio, traliccio compreso, a + b", totale,
         "cmc");
  const double lunghezza = LunghezzaFerroIntegrativo(L0, a, totale, barra.diametro, &barra.passi);
  barra.lunghezza = Mostrata(barra.passi, "Lunghezza del ferro", lunghezza);
}

void MisuraMoncone(Moncone& moncone, const Conto& M, const Appoggio& appoggio,
                   const RisultatiSolaioT& r) {
  if (moncone.diametro == 0) return;
  Catena& passi = moncone.passi = appoggio.passiMomento;
  if (!M.Semplice())
    Annota(passi, "Momento che spetta al moncone corto, M, come la sua area in quella dei due", M,
           "Kg x m");
  double x = DistanzaDiCaduta(r.taglio, r.q, M, LuceDiCalcolo(r), &passi);
  if (x < r.zonaPiena) x = Annota(passi, "Non meno della zona piena", r.zonaPiena, "m");
  const double cm = Annota(passi, "In campata, 100 x e 2,5 cm per ogni mm di diametro",
                           100 * Conto(x) + 2.5 * Conto(moncone.diametro), "cm");
  moncone.campata = MinimoAncoraggio(cm, &passi);
  moncone.incastro =
      AncoraggioMoncone(moncone.diametro, appoggio.acciaioPiena, r.ammissibili.aderenza, &passi);
  Mostrata(passi, "Incastro e campata", Conto(moncone.incastro) + moncone.campata);
}

}  // namespace orm
