// The fee of one duty: reckoned over all lots, held against its least fee, then printed lot by lot.
#include "cases/sic/note.h"
#include "runtime/text.h"
#include "tariff/explanations.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"

namespace orm {
namespace {

std::string_view Fetta(std::string_view segni, std::size_t primo, std::size_t quanti) {
  return primo < segni.size() ? segni.substr(primo, quanti) : std::string_view();
}

}  // namespace

double NotaSic::BaseDi(const Gruppo& g, bool progetto) const {
  if (!progetto) return g.BaseEsecuzione;
  return versione.SC2 ? g.BaseProgetto : g.ProgettoGruppo;
}

// Design and execution take the percentage of different bases; whether there are two slices is
// decided by the group's design in both.
PercentualiTabellaA NotaSic::PercentualeDiLotto(const Lotto& lotto, bool progetto) const {
  const Gruppo& g = gruppi[lotto.gruppo];
  const std::string &classe = lotto.dati.Classe, &categoria = lotto.dati.Categoria;
  if (versione.SC2) return {PercentualeDaTabellaNuova(BaseDi(g, progetto), classe, categoria), {}};
  const auto tabella = [&](double importo) {
    return PercentualeDaTabellaA(importo, lotto.periodo, classe, categoria);
  };
  const double base = BaseDi(g, progetto), limite = LimiteTabellaA();
  if (g.ProgettoGruppo > limite && lotto.periodo > 4) return {tabella(limite), tabella(base), true};
  return {tabella(base), {}};
}

// The increments of the execution belong to the version of 2001 alone.
NotaSic::Fattori NotaSic::FattoriDi(const Lotto& lotto, std::size_t p) const {
  const std::size_t n = versione.maggiorazioni.size();
  Fattori f;
  f.maggiorazioni = 1 + SommaCondizioni(versione.maggiorazioni,
                                        Fetta(lotto.dati.StringaMaggiorazioni, p * n, n)) /
                            100;
  const auto incrementi = [&](std::size_t primo) {
    return 1 + SommaCondizioni(versione.incrementi,
                               Fetta(lotto.dati.StringaIncrementi, primo, kIncrementi)) /
                   100;
  };
  if (p == kCoordinatoreProgetto) f.incrementi = incrementi(0);
  if (p == kCoordinatoreEsecuzione && versione.SC2) f.incrementi = incrementi(kIncrementi);
  return f;
}

// In the execution the increment is shown and left out of the fee.
NotaSic::ContoLotto NotaSic::ContoDi(const Fase& fase, const Lotto& lotto) const {
  const Fattori f = FattoriDi(lotto, fase.p);
  const bool progetto = fase.prestazione.progetto;
  return {.percentuali = PercentualeDiLotto(lotto, progetto),
          .importo = progetto ? lotto.ImportoBase : lotto.dati.ImportoEsecuzione,
          .FattoreMaggiorazioni = f.maggiorazioni,
          .FattoreIncrementi = f.incrementi,
          .IncrementiContati = progetto ? f.incrementi : 1};
}

// A factor of 1 is none.
Conto NotaSic::Prodotto(const QuotaImporto& quota, double aliquota, double maggiorazioni,
                        double incrementi) const {
  Conto prodotto = quota.percentuale.valore * quota.importo * aliquota / 100 * Coefficiente;
  for (const double fattore : {maggiorazioni, incrementi})
    if (fattore != 1) prodotto *= fattore;
  return prodotto;
}

// The conditions chosen, each with its percentage.
Passaggio NotaSic::PassoCondizioni(const char* quali, std::span<const CondizioneSic> condizioni,
                                   std::string_view segni) {
  std::string scelte;
  Conto somma;
  for (std::size_t i = 0; i < condizioni.size() && i < segni.size(); ++i) {
    if (segni[i] != '1') continue;
    scelte += (scelte.empty() ? "" : "; ") + std::string(condizioni[i].testo);
    somma += condizioni[i].percentuale;
  }
  while (scelte.ends_with('.')) scelte.pop_back();
  return {quali + (" nei dati: " + scelte), somma, somma.Valore(), "%"};
}

// Of the increments those of the design or of the execution.
Passaggio NotaSic::PassoMaggiorazioni(const Lotto& lotto, std::size_t p) const {
  const std::size_t n = versione.maggiorazioni.size();
  return PassoCondizioni("Maggiorazioni scelte", versione.maggiorazioni,
                         Fetta(lotto.dati.StringaMaggiorazioni, p * n, n));
}

Passaggio NotaSic::PassoIncrementi(const Lotto& lotto, std::size_t p) const {
  return PassoCondizioni("Incrementi scelti", versione.incrementi,
                         Fetta(lotto.dati.StringaIncrementi,
                               p == kCoordinatoreEsecuzione ? kIncrementi : 0, kIncrementi));
}

Passaggio NotaSic::PassoAliquota(const Fase& fase) const {
  return {std::string("Sicurezza dei cantieri (D.Lgs 494/96), ") + fase.prestazione.didascalia +
              ": aliquota" + (versione.SC2 ? " (D.M. 4-4-2001)" : " (versione C.N.I. e C.N.A.)"),
          "", fase.prestazione.aliquota};
}

Parcella::Ragioni NotaSic::RagioniDi(const Fase& fase, const Lotto& lotto,
                                     const ContoLotto& conto) const {
  Ragioni ragioni{"Onorario: percentuale, importo e aliquota, per il coefficiente dei compensi",
                  {PassoAliquota(fase)}};
  const auto fattore = [&](const char* quale, Passaggio percento, double valore) {
    if (valore == 1) return;
    const Conto conCento = Conto(*percento.risultato) / 100 + 1;
    ragioni.prima.push_back(std::move(percento));
    ragioni.prima.push_back({quale, conCento, valore});
  };
  fattore("Fattore delle maggiorazioni", PassoMaggiorazioni(lotto, fase.p),
          conto.FattoreMaggiorazioni);
  fattore("Fattore degli incrementi", PassoIncrementi(lotto, fase.p), conto.FattoreIncrementi);
  const bool maggiorato = conto.FattoreMaggiorazioni != 1,
             incrementato = conto.IncrementiContati != 1;
  if (maggiorato && incrementato)
    ragioni.regola += " e per i fattori delle maggiorazioni e degli incrementi";
  else if (maggiorato)
    ragioni.regola += " e per il fattore delle maggiorazioni";
  else if (incrementato)
    ragioni.regola += " e per il fattore degli incrementi";
  if (conto.FattoreIncrementi != conto.IncrementiContati)
    ragioni.note.emplace_back("Nell'esecuzione l'incremento è scritto e non entra nell'onorario");
  if (conto.importo < 0) ragioni.note.emplace_back("Un importo negativo non dà onorario");
  return ragioni;
}

// Works executed up to the limit take the first percentage alone; a design does not look at the
// lot's amount, and the second slice may be less than nothing.
std::vector<NotaSic::Termine> NotaSic::Termini(const Fase& fase, const ContoLotto& conto) const {
  const bool unaFetta = !fase.prestazione.progetto && conto.importo <= LimiteTabellaA();
  const auto quote = unaFetta ? std::vector<QuotaImporto>{{conto.importo, conto.percentuali.entro}}
                              : QuoteDellImporto(conto.percentuali, conto.importo);
  std::vector<Termine> termini;
  for (const QuotaImporto& quota : quote)
    termini.push_back({quota, conto.importo > 0
                                  ? Prodotto(quota, fase.prestazione.aliquota,
                                             conto.FattoreMaggiorazioni, conto.IncrementiContati)
                                  : Conto(0)});
  return termini;
}

// The pass that is held against the least fee: in Euro its fees are not cut.
double NotaSic::Conteggio(const Fase& fase) const {
  double risultato = 0;
  for (const Lotto& lotto : lotti) {
    if (!Impegnato(lotto, fase.p)) continue;
    const ContoLotto conto = ContoDi(fase, lotto);
    for (const Termine& termine : Termini(fase, conto)) risultato += IntInLire(termine.onorario);
  }
  return risultato;
}

Conto NotaSic::OnorarioFase(const Fase& fase) {
  uscita.Line(Middle(fase.prestazione.titolo, 4));
  double risultato = Conteggio(fase);
  const bool minimo = fase.prestazione.progetto ? OnorarioMinimoFase(fase, risultato)
                                                : OnorarioMinimoEsecuzione(fase, risultato);
  return minimo ? Zero() + risultato : StampaLotti(fase);
}

Conto NotaSic::StampaLotti(const Fase& fase) {
  Conto risultato = Zero();
  for (const Lotto& lotto : lotti)
    if (Impegnato(lotto, fase.p)) risultato += StampaLotto(fase, lotto);
  return risultato;
}

// Behind the percentages stands what the group's design comes to, in the execution too.
void NotaSic::StampaPercentualiDi(const Fase& fase, const Lotto& lotto, const ContoLotto& conto) {
  const Gruppo& g = gruppi[lotto.gruppo];
  std::string regola;
  if (spiegazioni.Attive()) {
    const double base = BaseDi(g, fase.prestazione.progetto);
    regola = d.TipoDiParcella == "NORMALE"
                 ? "Lavori del lotto, i maggiori fra quelli di progetto e quelli eseguiti"
                 : "Lavori di progetto del lotto";
    if (base != g.ProgettoGruppo)
      regola += " (la percentuale si prende invece su quelli eseguiti, " + TestoImporto(base) +
                " " + Valuta() + ")";
  }
  StampaPercentuali(
      conto.percentuali.divise ? "  - Percentuale Tab. A =  " : "  - Percentuale Tab. A = ",
      conto.percentuali, g.ProgettoGruppo, 38, regola);
}

Conto NotaSic::StampaLotto(const Fase& fase, const Lotto& lotto) {
  const ContoLotto conto = ContoDi(fase, lotto);
  if (conto.importo == 0) return Zero();
  const double aliquota = fase.prestazione.aliquota;
  uscita.Line("  " + TitoloLotto(lotto.numero, lotto.dati.Classe, lotto.dati.Categoria) + "      " +
              NomePeriodoTariffario(lotto.periodo));
  StampaLavori(3, "- Lavori ", conto.importo,
               fase.prestazione.progetto && lotto.dati.ImportoProgetto == conto.importo
                   ? kCampoProgetto
                   : kCampoEseguito);
  StampaPercentualiDi(fase, lotto, conto);
  const std::string fattori = StampaFattori(fase, lotto, conto);
  const std::vector<Termine> termini = Termini(fase, conto);
  std::vector<std::string> importi;
  for (const Termine& termine : termini) importi.push_back(TestoImporto(termine.quota.importo));
  if (importi.size() == 2) PareggiaStringhe(importi[0], importi[1]);
  Conto onorario = Zero();
  for (std::size_t i = 0; i < termini.size(); ++i)
    onorario += StampaOnorario({.inizio = "    ",
                                .percentualePrima = true,
                                .aliquota = aliquota,
                                .decimali = 4,
                                .percentuale = termini[i].quota.percentuale,
                                .importo = importi[i],
                                .fattori = fattori},
                               termini[i].onorario, [&] { return RagioniDi(fase, lotto, conto); });
  return onorario;
}

// The line of the aliquot; the factors as the formula shows them come back.
std::string NotaSic::StampaFattori(const Fase& fase, const Lotto& lotto, const ContoLotto& conto) {
  uscita.Text("  - Aliquota = " + FormattaCopia(fase.prestazione.aliquota, 4));
  std::string fattori;
  const auto fattore = [&](int colonna, const char* voce, double valore) {
    if (valore == 1) return;
    uscita.Tab(colonna).Text(voce + FormattaCopia((valore - 1) * 100, 2) + "%");
    fattori += " x " + FormattaCopia(valore, 2);
  };
  fattore(25, "Maggiorazione = ", conto.FattoreMaggiorazioni);
  fattore(45, "Incremento = ", conto.FattoreIncrementi);
  uscita.EndLine();
  spiegazioni.Riga(uscita.Contents(), [&] {
    Catena catena{Mostrato(PassoAliquota(fase), 4)};
    if (conto.FattoreMaggiorazioni != 1)
      catena.push_back(Mostrato(PassoMaggiorazioni(lotto, fase.p), 2, "%"));
    if (conto.FattoreIncrementi != 1)
      catena.push_back(Mostrato(PassoIncrementi(lotto, fase.p), 2, "%"));
    return catena;
  });
  return fattori;
}

}  // namespace orm
