// The fee of static testing: a rule for each tariff period, then the variations of the base fee.
#include <algorithm>
#include <cmath>

#include "cases/cos/cos.h"
#include "cases/cos/note.h"
#include "runtime/explanation/steps.h"
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
               "IMPORTO SUDDIVISO NEI PERIODI TARIFFARI, " + tariffa.testata.NomePeriodo[i]);

  OnorarioCos conto;
  if (periodo.ModoPeriodo == "ONORARIO") {
    conto = ConQuota(InValuta(periodo.OnorarioA(TotaleInLire)), importo);
    if (spiegazioni.Attive()) conto.prima = CatenaOnorarioIntero(periodo, i);
  } else {
    const Percentuale P = PercentualeDaTabellaCS(periodo, i);
    const double minimo = InValuta(periodo.MinimoPeriodo);
    const bool alMinimo = d.ImportoTotaleCS * P.valore / 100 < minimo;
    conto = alMinimo ? ConQuota(minimo, importo) : ConPercentuale(periodo, P, importo);
    if (alMinimo && spiegazioni.Attive())
      conto.prima = Unite(
          P.catena,
          {PassoImporto("Onorario che ne verrebbe per l'importo totale",
                        Conto(d.ImportoTotaleCS) * P.valore / 100),
           PassoTariffa("Vale l'onorario minimo del periodo, che è maggiore, dalla " + Tabella(i),
                        periodo.MinimoPeriodo)});
  }
  double onorario = Arrotonda(IntInLire(conto.conto));
  uscita.Line(" Onorario Collaudo Statico");
  StampaFormula(conto.formula + Uguale(), onorario);
  Spiega([&] {
    return CatenaArrotondata(Unite(std::move(conto.prima), CatenaCompensi), conto.regola,
                             conto.conto);
  });
  OnorarioBase += onorario;
}

// The period's share of a fee for the whole.
NotaCos::OnorarioCos NotaCos::ConQuota(double onorarioIntero, double importo) const {
  const Conto Quota = Conto(onorarioIntero) * importo / d.ImportoTotaleCS;
  return {Coefficiente * Quota, TestoImporto(Quota) + StringaCoefficiente,
          "Onorario di collaudo statico: parte del periodo nell'onorario intero, per il "
          "coefficiente dei compensi"};
}

std::string NotaCos::Tabella(std::size_t i) const {
  return TabellaPersonale(CasoDiParcella + ".CFG", tariffa.testata.NotaPeriodo[i]);
}

// The two steps of the whole amount and what lies between them; `unita` of their values.
std::string NotaCos::FraGliScaglioni(const PeriodoCos& periodo, const char* unita) const {
  const Interpolazione p = periodo.PassiA(TotaleInLire);
  const auto scaglione = [&](double limite, double valore) {
    return "L. " + CifraEsatta(limite) + " (" + CifraEsatta(valore) + " " + unita + ")";
  };
  const std::string importo = "L'importo totale di L. " + CifraEsatta(p.x);
  if (p.x0 == p.x1)
    return importo +
           (p.x <= p.x0 ? " non passa il primo scaglione, " : " passa l'ultimo scaglione, ") +
           scaglione(p.x0, p.y0) + ", il cui valore vale anche qui";
  return importo + " sta tra " + scaglione(p.x0, p.y0) + " e " + scaglione(p.x1, p.y1) +
         "; tra i due valori si interpola in linea retta";
}

Catena NotaCos::CatenaOnorarioIntero(const PeriodoCos& periodo, std::size_t i) const {
  const Conto onorario = periodo.OnorarioA(TotaleInLire);
  Catena catena = CatenaInLire(d.ImportoTotaleCS);
  catena.push_back({"Onorario di collaudo statico intero, dalla " + Tabella(i) + ". " +
                        FraGliScaglioni(periodo, "Lire"),
                    onorario, onorario.Valore(), "Lire"});
  if (onorario > periodo.ValoreA(TotaleInLire).Valore())
    catena.back().Annota("È l'onorario minimo del periodo, che supera quello degli scaglioni");
  return ModoLire ? catena : Unite(std::move(catena), CatenaInValuta(onorario));
}

Percentuale NotaCos::PercentualeDaTabellaCS(const PeriodoCos& periodo, std::size_t i) const {
  const Conto valore = periodo.ValoreA(TotaleInLire);
  return PercentualeTagliata(TotaleInLire, valore, [&] {
    return Unite(CatenaInLire(d.ImportoTotaleCS),
                 {{"Percentuale di collaudo statico, dalla " + Tabella(i) + ". " +
                       FraGliScaglioni(periodo, "%"),
                   valore, valore.Valore(), "%"}});
  });
}

// The percentage of the whole on the period's amount; what this has beyond the last limit has a
// percentage of its own.
NotaCos::OnorarioCos NotaCos::ConPercentuale(const PeriodoCos& periodo, const Percentuale& P,
                                             double importo) {
  constexpr std::string_view voce = " % d'applicazione  = ";
  const double limite = InValuta(periodo.Limite.back());
  if (importo <= limite || periodo.PercOltre == 0) {
    StampaPercentuale(voce, P, importo, 33, "Importo del periodo, a cui si applica");
    return {Conto(P.valore) * importo / 100 * Coefficiente,
            P.testo + " x " + TestoImporto(importo) + StringaCoefficiente,
            "Onorario di collaudo statico: percentuale e importo del periodo, per il coefficiente "
            "dei compensi",
            P.catena};
  }
  const Percentuale oltre = PercentualeTagliata(TotaleInLire, periodo.PercOltre, [&]() -> Catena {
    return {{"Percentuale oltre l'ultimo scaglione, dalla " +
                 TabellaPersonale(CasoDiParcella + ".CFG", ""),
             "", periodo.PercOltre, "%"}};
  });
  const Conto eccedenza = Conto(importo) - limite;
  StampaPercentuale(voce, P, limite, 33, "Ultimo scaglione della tabella");
  StampaPercentuale(voce, oltre, eccedenza, 33, "Importo del periodo oltre l'ultimo scaglione");
  const Conto parteOltre = eccedenza * oltre.valore / 100;
  const Conto parteEntro = Conto(P.valore) * limite / 100;
  return {(parteOltre + parteEntro) * Coefficiente,
          "( " + TestoImporto(parteEntro) + " + " + TestoImporto(parteOltre) + " )" +
              StringaCoefficiente,
          "Onorario di collaudo statico: la parte oltre l'ultimo scaglione e quella entro, ognuna "
          "con la sua percentuale, per il coefficiente dei compensi",
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
                        " Lire, l'unità della " + TabellaPersonale(CasoDiParcella + ".CFG", ""),
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
    const std::string& nome = tariffa.testata.NomeVariazione[i];
    uscita.Line(nome + " " + FormattaNumero(Maggiorazione, 5) + "%");
    spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
      return {Mostrato(
          PassoDato("MAGGIORAZIONI E RIDUZIONI in %, " + nome, d.Maggiorazione[i], "%"), 5, "%")};
    });
    const Conto conto = OnorarioBase * Maggiorazione / 100;
    double variazione = Arrotonda(IntInLire(conto));
    StampaRigaOnorario(
        1, FormattaCopia(Maggiorazione / 100, 7) + " x " + TestoImporto(OnorarioBase) + Uguale(),
        variazione);
    Spiega([&] {
      return CatenaArrotondata({}, nome + ": in percento dell'onorario dei periodi", conto);
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
