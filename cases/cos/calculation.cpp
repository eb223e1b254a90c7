// The fee of static testing: a rule for each tariff period, then the variations of the base fee.
#include <algorithm>
#include <cmath>

#include "cases/cos/cos.h"
#include "cases/cos/note.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/files/closing_line.h"
#include "tariff/money.h"
#include "tariff/report.h"

namespace orm {

double ArrotondaAlleCifreDi(const RunState& stato, double onorario, double unita) {
  if (unita == 0) return onorario;
  const double lire = stato.ModoLire ? onorario : EuroInLire(onorario);
  const double arrotondato = std::round(lire / unita) * unita;
  return stato.ModoLire ? arrotondato : LireInEuro(arrotondato);
}

NotaCos::NotaCos(RunState& run, const DatiCos& dati)
    : stato(run),
      uscita(run.NumFileUscita),
      d(dati),
      testata(LeggiTestataCos(run.folder, run.CasoDiParcella)),
      TotaleInLire(ImportoInLire(run, dati.ImportoTotaleCS)) {}

// Amounts of the tariff file are in Lire.
double NotaCos::InValuta(double lire) const { return stato.ModoLire ? lire : LireInEuro(lire); }

std::string NotaCos::Numero() { return NumberText(++numero) + " -"; }

std::string NotaCos::Uguale() const {
  return testata.UnitaArrotondamento != 0 ? " = ( arrot. )" : " =";
}

void NotaCos::StampaTotale() {
  uscita.Line(kRigaImporti);
  StampaLavori(stato, 1, "IMPORTO TOTALE OPERE COLLAUDATE ", d.ImportoTotaleCS);
  compensi = StampaCompensiAccessori(stato, d.ImportoTotaleCS);
  uscita.Line(kRigaOnorariCompensi);
}

void NotaCos::CalcolaPeriodi() {
  for (std::size_t i = 0; i < kPeriodiCos; ++i)
    if (d.ImportoCS[i] > 0) CalcolaPeriodo(i);
}

void NotaCos::CalcolaPeriodo(std::size_t i) {
  if (d.ImportoTotaleCS == 0)
    throw RuntimeFailure("Divisione per zero: l'importo totale delle opere è 0.")
        .AtFile(stato.FileInp)
        .AtField("ImportoTotaleCS");
  const double importo = d.ImportoCS[i];
  const PeriodoCos periodo = LeggiPeriodoCos(stato.folder, stato.CasoDiParcella, i);
  uscita.Line(Numero() + " Periodo tariffario n. " + testata.NomePeriodo[i]);
  StampaLavori(stato, 1, " Importo Strutture Collaudate", importo);

  Conto conto;
  if (periodo.ModoPeriodo == "ONORARIO") {
    conto = ConQuota(InValuta(periodo.OnorarioA(TotaleInLire)), importo);
  } else {
    const Percentuale P = PercentualeDaTabellaCS(periodo);
    const double minimo = InValuta(periodo.MinimoPeriodo);
    conto = d.ImportoTotaleCS * P.valore / 100 < minimo ? ConQuota(minimo, importo)
                                                        : ConPercentuale(periodo, P, importo);
  }
  double onorario = Arrotonda(IntInLire(stato, conto.onorario));
  uscita.Line(" Onorario Collaudo Statico");
  StampaFormula(stato, conto.formula + Uguale(), onorario);
  OnorarioBase += onorario;
}

// The period's share of a fee for the whole.
NotaCos::Conto NotaCos::ConQuota(double onorarioIntero, double importo) const {
  const double Quota = onorarioIntero * importo / d.ImportoTotaleCS;
  return {compensi.Coefficiente * Quota, TestoImporto(stato, Quota) + compensi.StringaCoefficiente};
}

Percentuale NotaCos::PercentualeDaTabellaCS(const PeriodoCos& periodo) const {
  return PercentualeTagliata(stato, TotaleInLire, periodo.ValoreA(TotaleInLire));
}

// The percentage of the whole on the period's amount; what this has beyond the last limit has a
// percentage of its own.
NotaCos::Conto NotaCos::ConPercentuale(const PeriodoCos& periodo, const Percentuale& P,
                                       double importo) {
  constexpr std::string_view voce = " % d'applicazione  = ";
  const double limite = InValuta(periodo.Limite.back());
  if (importo <= limite || periodo.PercOltre == 0) {
    StampaPercentuale(stato, voce, P, importo);
    return {P.valore * importo / 100 * compensi.Coefficiente,
            P.testo + " x " + TestoImporto(stato, importo) + compensi.StringaCoefficiente};
  }
  const Percentuale oltre = PercentualeTagliata(stato, TotaleInLire, periodo.PercOltre);
  StampaPercentuale(stato, voce, P, limite);
  StampaPercentuale(stato, voce, oltre, importo - limite);
  const double parteOltre = (importo - limite) * oltre.valore / 100;
  const double parteEntro = P.valore * limite / 100;
  return {(parteOltre + parteEntro) * compensi.Coefficiente,
          "( " + TestoImporto(stato, parteEntro) + " + " + TestoImporto(stato, parteOltre) + " )" +
              compensi.StringaCoefficiente};
}

void NotaCos::CalcolaVariazioni() {
  if (std::ranges::all_of(d.Maggiorazione, [](double m) { return m == 0; })) return;
  uscita.Line(Numero() + " Variazioni sull'Onorario Base");
  for (std::size_t i = 0; i < kVariazioniCos; ++i) {
    double Maggiorazione = d.Maggiorazione[i];
    if (Maggiorazione == 0) continue;
    uscita.Line(testata.NomeVariazione[i] + " " + FormattaNumero(Maggiorazione, 5) + "%");
    double variazione = Arrotonda(IntInLire(stato, OnorarioBase * Maggiorazione / 100));
    StampaRigaOnorario(stato, 1,
                       FormattaCopia(Maggiorazione / 100, 7) + " x " +
                           TestoImporto(stato, OnorarioBase) + Uguale(),
                       variazione);
    variazioni += variazione;
  }
}

void CalcoloCos(RunState& stato) {
  DatiCos dati;
  LeggiParcella(stato, dati);
  NotaCos nota(stato, dati);
  ApriParcella(stato, stato.FileInt, "per le prestazioni di collaudo statico relative a :");
  nota.StampaTotale();
  nota.CalcolaPeriodi();
  nota.CalcolaVariazioni();
  nota.RevisioneCalcoliCos();
  nota.Chiudi();
}

}  // namespace orm
