// The least fees of site safety: for the design the whole of it, for the execution by how far the
// works have come.
#include "cases/sic/note.h"
#include "runtime/failure.h"
#include "tariff/money.h"

namespace orm {

double NotaSic::StampaMinimo(const Fase& fase) {
  uscita.Line("  ONORARIO MINIMO  ");
  double risultato = IntInLire(fase.Minimo * Coefficiente);
  StampaRigaOnorario(1, TestoImporto(fase.Minimo) + StringaCoefficiente + " =", risultato);
  return risultato;
}

// The words of a commission that ended early are in capitals, in Lire alone.
double NotaSic::StampaMinimoInParte(const Fase& fase, bool ancora) {
  if (TotaleProgetto == 0)
    throw RuntimeFailure(
        "Divisione per zero: l'onorario minimo va in proporzione ai lavori di progetto, che sono "
        "0.");
  double Rapporto = TotaleEseguito / TotaleProgetto;
  const std::string testo = FormattaNumero(Rapporto, 2);
  uscita
      .Text(ModoLire && !ancora ? "  PERCENTUALE dei LAVORI già ESEGUITI sul Totale : "
                                : "  Percentuale dei LAVORI già ESEGUITI sul Totale : ")
      .Line(testo);
  uscita.Line("  ONORARIO MINIMO  ");
  double risultato = IntInLire(Rapporto * fase.Minimo * Coefficiente);
  StampaRigaOnorario(1, testo + " x " + TestoImporto(fase.Minimo) + StringaCoefficiente + " =",
                     risultato);
  return risultato;
}

bool NotaSic::OnorarioMinimoFase(const Fase& fase, double& risultato) {
  if (fase.Minimo * Coefficiente <= risultato) return false;
  risultato = StampaMinimo(fase);
  return true;
}

bool NotaSic::OnorarioMinimoEsecuzione(const Fase& fase, double& risultato) {
  const double MinimoPieno = fase.Minimo * Coefficiente;
  if (MinimoPieno <= risultato) return false;
  const bool normale = d.TipoDiParcella == "NORMALE";
  const bool tutto = normale ? TotaleEseguito >= TotaleProgetto : d.TipoDiParcella == "CONSUNTIVA";
  if (tutto) {
    risultato = StampaMinimo(fase);
    return true;
  }
  if (normale && MinimoPieno <= OnorarioSuProgetto(fase)) return false;
  risultato = StampaMinimoInParte(fase, normale);
  return true;
}

// What the duty would earn on the whole works, whether or not each lot engages it, with the factors
// of the note's last lot.
double NotaSic::OnorarioSuProgetto(const Fase& fase) const {
  const Fattori f = FattoriDi(lotti.back(), fase.p);
  double risultato = 0;
  for (const Lotto& lotto : lotti) {
    if (lotto.ImportoBase <= 0) continue;
    const PercentualiTabellaA percentuali = PercentualeDiLotto(lotto, false);
    for (const QuotaImporto& quota : QuoteDellImporto(percentuali, lotto.ImportoBase))
      risultato += Prodotto(quota, fase.prestazione.aliquota, f.maggiorazioni, f.incrementi);
  }
  return risultato;
}

}  // namespace orm
