// The least fees of site safety: for the design the whole of it, for the execution by how far the
// works have come.
#include "cases/sic/note.h"
#include "runtime/failure.h"
#include "tariff/explanations.h"
#include "tariff/money.h"

namespace orm {

Catena NotaSic::CatenaMinimo(const Fase& fase, double conteggio) const {
  return {
      PassoImporto(
          "Onorario a percentuale dei lotti, con i compensi; quello minimo, con i suoi, lo supera",
          conteggio),
      PassoTariffa(std::string("Sicurezza dei cantieri (D.Lgs 494/96), ") +
                       fase.prestazione.didascalia + ": onorario minimo",
                   fase.prestazione.minimo)};
}

double NotaSic::StampaMinimo(const Fase& fase, double conteggio) {
  uscita.Line("  ONORARIO MINIMO  ");
  const Conto conto = Conto(fase.Minimo) * Coefficiente;
  double risultato = IntInLire(conto);
  StampaRigaOnorario(1, TestoImporto(fase.Minimo) + StringaCoefficiente + " =", risultato);
  Spiega([&] {
    return CatenaOnorario(
        {}, conto,
        {"Onorario minimo, per il coefficiente dei compensi", CatenaMinimo(fase, conteggio)});
  });
  return risultato;
}

// The words of a commission that ended early are in capitals, in Lire alone.
double NotaSic::StampaMinimoInParte(const Fase& fase, double conteggio, bool ancora) {
  if (TotaleProgetto == 0)
    throw RuntimeFailure(
        "Divisione per zero: l'onorario minimo va in proporzione ai lavori di progetto, che sono "
        "0.");
  const Conto divisione = TotaleEseguito / TotaleProgetto;
  double Rapporto = divisione;
  const std::string testo = FormattaNumero(Rapporto, 2);
  uscita
      .Text(ModoLire && !ancora ? "  PERCENTUALE dei LAVORI già ESEGUITI sul Totale : "
                                : "  Percentuale dei LAVORI già ESEGUITI sul Totale : ")
      .Line(testo);
  spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
    return {Mostrato(
        {"Lavori eseguiti sui lavori di progetto", divisione.Testo(), divisione.Valore()}, 2)};
  });
  uscita.Line("  ONORARIO MINIMO  ");
  const Conto conto = Conto(Rapporto) * fase.Minimo * Coefficiente;
  double risultato = IntInLire(conto);
  StampaRigaOnorario(1, testo + " x " + TestoImporto(fase.Minimo) + StringaCoefficiente + " =",
                     risultato);
  Spiega([&] {
    return CatenaOnorario({}, conto,
                          {"Onorario minimo, per la parte dei lavori già eseguiti e per il "
                           "coefficiente dei compensi",
                           CatenaMinimo(fase, conteggio)});
  });
  return risultato;
}

bool NotaSic::OnorarioMinimoFase(const Fase& fase, double& risultato) {
  if (fase.Minimo * Coefficiente <= risultato) return false;
  risultato = StampaMinimo(fase, risultato);
  return true;
}

bool NotaSic::OnorarioMinimoEsecuzione(const Fase& fase, double& risultato) {
  const double MinimoPieno = fase.Minimo * Coefficiente;
  if (MinimoPieno <= risultato) return false;
  const bool normale = d.TipoDiParcella == "NORMALE";
  const bool tutto = normale ? TotaleEseguito >= TotaleProgetto : d.TipoDiParcella == "CONSUNTIVA";
  if (tutto) {
    risultato = StampaMinimo(fase, risultato);
    return true;
  }
  if (normale && MinimoPieno <= OnorarioSuProgetto(fase)) return false;
  risultato = StampaMinimoInParte(fase, risultato, normale);
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
      risultato +=
          IntInLire(Prodotto(quota, fase.prestazione.aliquota, f.maggiorazioni, f.incrementi));
  }
  return risultato;
}

}  // namespace orm
