#include "tariff/chains/compensation_chains.h"

#include <algorithm>

#include "runtime/explanation/steps.h"
#include "tariff/chains/percentage_chains.h"
#include "tariff/law/table_compensations.h"

namespace orm {
namespace {

Passaggio PassoPercentuale(const std::string& regola, double percentuale) {
  return {"Compensi accessori conglobati (art. 13). " + regola, "", percentuale, "%"};
}

std::string ImportoDi(double lire) { return "L'importo è di L. " + CifraEsatta(lire); }

}  // namespace

Passaggio PassoScaglioniCompensi(const Interpolazione& l, const std::string& nota,
                                 double percentuale) {
  Passaggio passo = PassoPercentuale("Criterio \"CALCOLATA secondo FILE PERSONALIZZATO\", dalla " +
                                         TabellaPersonale("CAC.CFG", nota) + ". ",
                                     percentuale);
  if (l.x0 == l.x1) {
    passo.regola += ImportoDi(l.x) + ", " + (l.x < l.x0 ? "sotto il primo" : "oltre l'ultimo") +
                    " scaglione, L. " + CifraEsatta(l.x0) + ", la cui percentuale vale anche qui";
    return passo;
  }
  passo.regola += TraIPassi(l) + " si interpola in linea retta";
  passo.conto = ContoInterpolazione(l);
  return passo;
}

Passaggio PassoCompensi2001(double lire, double percentuale) {
  const Compensi2001& tratto = kCompensi2001Lire;
  Passaggio passo = PassoPercentuale(
      "Criterio \"CALCOLATA secondo D.M. 4-4-01\". " + ImportoDi(lire), percentuale);
  if (lire <= tratto.fino) {
    passo.regola += ": fino a L. " + CifraEsatta(tratto.fino) + " la percentuale è la massima";
  } else if (lire > tratto.a) {
    passo.regola += ": oltre L. " + CifraEsatta(tratto.a) + " la percentuale è la minima";
  } else if (lire < tratto.da) {
    passo.regola += ", in nessuno dei due tratti del decreto";
  } else {
    passo.regola += ": da L. " + CifraEsatta(tratto.da) + " a L. " + CifraEsatta(tratto.a) +
                    " la percentuale cala in linea retta";
    passo.conto = ScriviConto("{} - ({} - {}) x ({} - {}) / ({} - {})",
                              {kCompensiMassimi2001, kCompensiMassimi2001, kCompensiMinimi2001,
                               lire, tratto.da, tratto.a, tratto.da});
  }
  return passo;
}

Passaggio PassoCompensiAssegnati(double percentuale) {
  return PassoPercentuale("Criterio \"ASSEGNATA per CONVENZIONE\"", percentuale);
}

Passaggio PassoCompensiCalabria(double lire, std::string_view residenza, double percentuale) {
  const std::string dove = residenza == "FUORIREGIONE" ? "Fuori Regione"
                           : residenza == "OLTRE100KM" ? "Oltre 100 Km"
                                                       : "Entro 100 Km";
  std::string regola =
      "Criterio della Regione Calabria per i collaudi, residenza del collaudatore \"" + dove +
      "\". " + ImportoDi(lire);
  const auto* fascia = std::ranges::find_if(
      kFasceCalabria, [lire](const FasciaCalabria& f) { return lire >= f.da && lire <= f.fino; });
  if (fascia == kFasceCalabria.end())
    regola += ", in nessuna fascia";
  else if (fascia == &kFasceCalabria.back())
    regola += ", oltre L. " + CifraEsatta(fascia->da);
  else
    regola += ", fino a L. " + CifraEsatta(fascia->fino);
  return PassoPercentuale(regola, percentuale);
}

Passaggio PassoCoefficiente(double percentuale, double coefficiente) {
  return {"Coefficiente che aggiunge i compensi accessori all'onorario",
          ScriviConto("{} / 100 + 1", {percentuale}), coefficiente};
}

}  // namespace orm
