// The fee of static testing: a rule for each tariff period, then the variations of the base fee.
#include <algorithm>
#include <cmath>

#include "cases/cos/cos.h"
#include "cases/cos/note.h"
#include "runtime/failure.h"
#include "tariff/money.h"

namespace orm {

double ArrotondaAlleCifreDi(const Parcella& nota, double onorario, double unita) {
  if (unita == 0) return onorario;
  return nota.InValuta(std::round(nota.ImportoInLire(onorario) / unita) * unita);
}

std::string NotaCos::Uguale() const {
  return tariffa.testata.UnitaArrotondamento != 0 ? " = ( arrot. )" : " =";
}

void NotaCos::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  StampaLavori(1, "IMPORTO TOTALE OPERE COLLAUDATE ", d.ImportoTotaleCS);
  CompensiAccessori(TotaleInLire);
}

void NotaCos::CalcolaPeriodi() {
  uscita.Line(kRigaOnorariCompensi);
  for (std::size_t i = 0; i < kPeriodiCos; ++i)
    if (d.ImportoCS[i] > 0) CalcolaPeriodo(i);
}

void NotaCos::CalcolaPeriodo(std::size_t i) {
  if (d.ImportoTotaleCS == 0)
    throw RuntimeFailure("Divisione per zero: l'importo totale delle opere è 0.")
        .AtField("ImportoTotaleCS");
  const double importo = d.ImportoCS[i];
  const PeriodoCos periodo = tariffa.Periodo(i);
  uscita.Line(Numero() + " Periodo tariffario n. " + tariffa.testata.NomePeriodo[i]);
  StampaLavori(1, " Importo Strutture Collaudate", importo);

  Conto conto;
  if (periodo.ModoPeriodo == "ONORARIO") {
    conto = ConQuota(InValuta(periodo.OnorarioA(TotaleInLire)), importo);
  } else {
    const Percentuale P = PercentualeDaTabellaCS(periodo);
    const double minimo = InValuta(periodo.MinimoPeriodo);
    conto = d.ImportoTotaleCS * P.valore / 100 < minimo ? ConQuota(minimo, importo)
                                                        : ConPercentuale(periodo, P, importo);
  }
  double onorario = Arrotonda(IntInLire(conto.onorario));
  uscita.Line(" Onorario Collaudo Statico");
  StampaFormula(conto.formula + Uguale(), onorario);
  OnorarioBase += onorario;
}

// The period's share of a fee for the whole.
NotaCos::Conto NotaCos::ConQuota(double onorarioIntero, double importo) const {
  const double Quota = onorarioIntero * importo / d.ImportoTotaleCS;
  return {Coefficiente * Quota, TestoImporto(Quota) + StringaCoefficiente};
}

Percentuale NotaCos::PercentualeDaTabellaCS(const PeriodoCos& periodo) const {
  return PercentualeTagliata(TotaleInLire, periodo.ValoreA(TotaleInLire));
}

// The percentage of the whole on the period's amount; what this has beyond the last limit has a
// percentage of its own.
NotaCos::Conto NotaCos::ConPercentuale(const PeriodoCos& periodo, const Percentuale& P,
                                       double importo) {
  constexpr std::string_view voce = " % d'applicazione  = ";
  const double limite = InValuta(periodo.Limite.back());
  if (importo <= limite || periodo.PercOltre == 0) {
    StampaPercentuale(voce, P, importo);
    return {P.valore * importo / 100 * Coefficiente,
            P.testo + " x " + TestoImporto(importo) + StringaCoefficiente};
  }
  const Percentuale oltre = PercentualeTagliata(TotaleInLire, periodo.PercOltre);
  StampaPercentuale(voce, P, limite);
  StampaPercentuale(voce, oltre, importo - limite);
  const double parteOltre = (importo - limite) * oltre.valore / 100;
  const double parteEntro = P.valore * limite / 100;
  return {(parteOltre + parteEntro) * Coefficiente, "( " + TestoImporto(parteEntro) + " + " +
                                                        TestoImporto(parteOltre) + " )" +
                                                        StringaCoefficiente};
}

void NotaCos::CalcolaVariazioni() {
  if (std::ranges::all_of(d.Maggiorazione, [](double m) { return m == 0; })) return;
  uscita.Line(Numero() + " Variazioni sull'Onorario Base");
  for (std::size_t i = 0; i < kVariazioniCos; ++i) {
    double Maggiorazione = d.Maggiorazione[i];
    if (Maggiorazione == 0) continue;
    uscita.Line(tariffa.testata.NomeVariazione[i] + " " + FormattaNumero(Maggiorazione, 5) + "%");
    double variazione = Arrotonda(IntInLire(OnorarioBase * Maggiorazione / 100));
    StampaRigaOnorario(
        1, FormattaCopia(Maggiorazione / 100, 7) + " x " + TestoImporto(OnorarioBase) + Uguale(),
        variazione);
    variazioni += variazione;
  }
}

void NotaCos::Chiudi() {
  TotaleGenerale = OnorarioBase + variazioni + revisione;
  ChiudiConCompensi();
}

Parcella CalcoloCos(Parcella parcella, const DatiCos& dati, const TariffaCos& tariffa) {
  NotaCos nota(std::move(parcella), dati, tariffa);
  nota.ApriParcella("per le prestazioni di collaudo statico relative a :");
  nota.StampaSpecifica();
  nota.CalcolaPeriodi();
  nota.CalcolaVariazioni();
  nota.RevisioneCalcoliCos();
  nota.Chiudi();
  return nota;
}

}  // namespace orm
