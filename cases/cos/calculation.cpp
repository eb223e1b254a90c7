// The fee of static testing: a rule for each tariff period, then the variations of the base fee.
#include <algorithm>
#include <cmath>

#include "cases/cos/cos.h"
#include "cases/cos/note.h"
#include "runtime/failure.h"
#include "tariff/explanations.h"
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
  StampaLavori(1, "IMPORTO TOTALE OPERE COLLAUDATE ", d.ImportoTotaleCS,
               "IMPORTO TOTALE OPERE COLLAUDATE");
  CompensiSuLavori(d.ImportoTotaleCS, "Importo totale delle opere collaudate");
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
  StampaLavori(1, " Importo Strutture Collaudate", importo,
               "IMPORTO SUDDIVISO NEI PERIODI TARIFFARI");

  OnorarioCos conto;
  if (periodo.ModoPeriodo == "ONORARIO") {
    conto = ConQuota(InValuta(periodo.OnorarioA(TotaleInLire)), importo);
    if (spiegazioni.Attive()) conto.prima = CatenaOnorarioIntero(periodo);
  } else {
    const Percentuale P = PercentualeDaTabellaCS(periodo);
    const double minimo = InValuta(periodo.MinimoPeriodo);
    const bool alMinimo = d.ImportoTotaleCS * P.valore / 100 < minimo;
    conto = alMinimo ? ConQuota(minimo, importo) : ConPercentuale(periodo, P, importo);
    if (alMinimo && spiegazioni.Attive())
      conto.prima = {PassoTariffa("La percentuale darebbe meno: vale l'onorario minimo del periodo",
                                  periodo.MinimoPeriodo)};
  }
  double onorario = Arrotonda(IntInLire(conto.conto));
  uscita.Line(" Onorario Collaudo Statico");
  StampaFormula(conto.formula + Uguale(), onorario);
  Spiega([&] {
    return CatenaArrotondata(Unite(std::move(conto.prima), CatenaCompensi),
                             "Onorario di collaudo statico del periodo", conto.conto);
  });
  OnorarioBase += onorario;
}

// The period's share of a fee for the whole.
NotaCos::OnorarioCos NotaCos::ConQuota(double onorarioIntero, double importo) const {
  const Conto Quota = Conto(onorarioIntero) * importo / d.ImportoTotaleCS;
  return {Coefficiente * Quota, TestoImporto(Quota) + StringaCoefficiente};
}

Catena NotaCos::CatenaOnorarioIntero(const PeriodoCos& periodo) const {
  const Conto onorario = periodo.OnorarioA(TotaleInLire);
  Catena catena = CatenaInLire(d.ImportoTotaleCS);
  catena.push_back(
      {"Onorario di tabella (" + CasoDiParcella +
           ".CFG) per l'importo totale: fra due scaglioni si interpola in linea retta, "
           "e non va sotto il minimo",
       onorario.Semplice() ? "" : onorario.Testo(), onorario.Valore(), "Lire"});
  return ModoLire ? catena : Unite(std::move(catena), CatenaInValuta(onorario));
}

Percentuale NotaCos::PercentualeDaTabellaCS(const PeriodoCos& periodo) const {
  const Conto valore = periodo.ValoreA(TotaleInLire);
  return PercentualeTagliata(TotaleInLire, valore, [&] {
    return Unite(CatenaInLire(d.ImportoTotaleCS),
                 {{"Percentuale di tabella (" + CasoDiParcella +
                       ".CFG) per l'importo totale: fra due scaglioni si interpola in linea retta",
                   valore.Semplice() ? "" : valore.Testo(), valore.Valore(), "%"}});
  });
}

// The percentage of the whole on the period's amount; what this has beyond the last limit has a
// percentage of its own.
NotaCos::OnorarioCos NotaCos::ConPercentuale(const PeriodoCos& periodo, const Percentuale& P,
                                             double importo) {
  constexpr std::string_view voce = " % d'applicazione  = ";
  const double limite = InValuta(periodo.Limite.back());
  if (importo <= limite || periodo.PercOltre == 0) {
    StampaPercentuale(voce, P, importo);
    return {Conto(P.valore) * importo / 100 * Coefficiente,
            P.testo + " x " + TestoImporto(importo) + StringaCoefficiente, P.catena};
  }
  const Percentuale oltre = PercentualeTagliata(TotaleInLire, periodo.PercOltre, [&]() -> Catena {
    return {{"Percentuale oltre l'ultimo scaglione (" + CasoDiParcella + ".CFG)", "",
             periodo.PercOltre, "%"}};
  });
  const Conto eccedenza = Conto(importo) - limite;
  StampaPercentuale(voce, P, limite);
  StampaPercentuale(voce, oltre, eccedenza);
  const Conto parteOltre = eccedenza * oltre.valore / 100;
  const Conto parteEntro = Conto(P.valore) * limite / 100;
  return {(parteOltre + parteEntro) * Coefficiente,
          "( " + TestoImporto(parteEntro) + " + " + TestoImporto(parteOltre) + " )" +
              StringaCoefficiente,
          Unite(P.catena, oltre.catena)};
}

// A multiple of a unit is written as how many of them there are.
Catena NotaCos::CatenaArrotondata(Catena catena, const std::string& regola,
                                  const Conto& conto) const {
  for (Passaggio& passo : catena) passo.cifra.clear();  // those of other lines
  catena.push_back(PassoOnorario(regola, conto));
  const double unita = tariffa.testata.UnitaArrotondamento;
  if (unita == 0) return catena;
  const double onorario = IntInLire(conto);
  const Conto quante = Conto(ImportoInLire(onorario)) / unita;
  const double intere = std::round(quante.Valore());
  catena = Unite(std::move(catena), CatenaInLire(onorario));
  catena.push_back({"Arrotondamento alla cifra più vicina: quante volte " + CifraEsatta(unita) +
                        " Lire (" + CasoDiParcella + ".CFG)",
                    quante.Testo(),
                    quante.Valore(),
                    "",
                    {{TipoTaglio::Arrotonda, 0, quante.Valore(), intere}}});
  const Conto arrotondato = Conto(intere) * unita;
  catena.push_back({"Importo arrotondato", arrotondato.Testo(), arrotondato.Valore(), "Lire"});
  return ModoLire ? catena : Unite(std::move(catena), CatenaInValuta(arrotondato));
}

void NotaCos::CalcolaVariazioni() {
  if (std::ranges::all_of(d.Maggiorazione, [](double m) { return m == 0; })) return;
  uscita.Line(Numero() + " Variazioni sull'Onorario Base");
  for (std::size_t i = 0; i < kVariazioniCos; ++i) {
    double Maggiorazione = d.Maggiorazione[i];
    if (Maggiorazione == 0) continue;
    uscita.Line(tariffa.testata.NomeVariazione[i] + " " + FormattaNumero(Maggiorazione, 5) + "%");
    spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
      return {Mostrato(PassoDato("MAGGIORAZIONI E RIDUZIONI in %", d.Maggiorazione[i]), 5, "%")};
    });
    const Conto conto = OnorarioBase * Maggiorazione / 100;
    double variazione = Arrotonda(IntInLire(conto));
    StampaRigaOnorario(
        1, FormattaCopia(Maggiorazione / 100, 7) + " x " + TestoImporto(OnorarioBase) + Uguale(),
        variazione);
    Spiega([&] {
      return CatenaArrotondata({}, "Variazione in percento dell'onorario dei periodi", conto);
    });
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
