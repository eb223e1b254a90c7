// The reckoning of late-payment interest.
#include "utilities/interest.h"

#include <cmath>
#include <cstddef>

#include "runtime/failure.h"

namespace orm {
namespace {

double Differenza(const Date& fine, const Date& inizio) {
  return static_cast<double>(DayNumber(fine) - DayNumber(inizio));
}

// Periods are counted from 1. The walk stops at the last period without comparing: a first day in
// the period before the last already counts at the last rate.
std::size_t PeriodoIniziale(const TabellaTus& tabella, const Date& inizio) {
  const std::size_t ultimo = tabella.size();
  for (std::size_t i = 1; i != ultimo; ++i)
    if (inizio < tabella[i - 1].InizioPeriodo) return i - 1;
  return ultimo;
}

std::size_t PeriodoFinale(const TabellaTus& tabella, std::size_t da, const Date& fine) {
  std::size_t j = da;
  while (j < tabella.size() && fine > tabella[j - 1].FinePeriodo) ++j;
  return j;
}

// The days of a period that count, from the first day of the delay or to its last where it holds
// them. Its own first day has been counted in the period before; the last day of a whole period in
// the middle does not count.
TrattoMora TrattoDi(const PeriodoTus& periodo, const Date* inizio, const Date* fine) {
  using Estremi = TrattoMora::Estremi;
  const Date da = inizio != nullptr ? *inizio : periodo.InizioPeriodo;
  const Date a = fine != nullptr ? *fine : periodo.FinePeriodo;
  const bool entrambi = inizio != nullptr && fine == nullptr;
  const Estremi estremi = entrambi          ? Estremi::Entrambi
                          : fine != nullptr ? Estremi::SenzaIlPrimo
                                            : Estremi::SenzaLUltimo;
  return {da, a, estremi, Differenza(a, da) + (entrambi ? 1 : 0), periodo.Tasso, periodo.nota};
}

std::string Periodo(const TrattoMora& t) {
  using Estremi = TrattoMora::Estremi;
  const char* quali = t.estremi == Estremi::Entrambi       ? "il primo e l'ultimo giorno compresi"
                      : t.estremi == Estremi::SenzaIlPrimo ? "il primo giorno escluso"
                                                           : "l'ultimo giorno escluso";
  return "Dal " + ShortDate(t.da) + " al " + ShortDate(t.a) + ", " + quali + ", tasso " +
         CifraEsatta(t.tasso) + " %" + (t.nota.empty() ? "" : " (\"" + t.nota + "\")");
}

}  // namespace

InteressiMora CalcolaInteressiMora(const TabellaTus& tabella, double Onorario, const Date& inizio,
                                   const Date& fine, TipoInteresse tipo) {
  const std::size_t i = PeriodoIniziale(tabella, inizio);
  if (i == 0)
    throw RuntimeFailure(
        "La data di inizio mora precede il primo periodo della tabella dei tassi.");
  const std::size_t j = PeriodoFinale(tabella, i, fine);

  InteressiMora esito;
  Conto Giorni, Somma;
  for (std::size_t k = i; k <= j; ++k) {
    const PeriodoTus& periodo = tabella[k - 1];
    const TrattoMora tratto =
        TrattoDi(periodo, k == i ? &inizio : nullptr, k == j ? &fine : nullptr);
    Giorni += tratto.giorni;
    Somma += Conto(tratto.giorni) * tratto.tasso;
    esito.tratti.push_back(tratto);
  }
  if (Giorni == 0)
    throw RuntimeFailure(
        "I giorni di ritardo sono 0: il tasso medio non si può calcolare (divisione per zero).");

  esito.contoGiorni = Giorni;
  esito.contoTasso = Somma / Giorni.Valore();
  esito.Giorni = Giorni;
  esito.TassoMedio = esito.contoTasso;
  esito.composto = tipo == TipoInteresse::Composto && Giorni > 365;
  if (esito.composto) {
    esito.Interessi = Onorario * (std::pow(1 + esito.TassoMedio / 100, Giorni / 365) - 1);
    esito.contoInteressi = ScriviConto("{} x ((1 + {} / 100) ^ ({} / 365) - 1)",
                                       {Onorario, esito.TassoMedio, esito.Giorni});
  } else {
    const Conto interessi = Conto(Onorario) * esito.TassoMedio / 100 * (Conto(esito.Giorni) / 365);
    esito.Interessi = interessi;
    esito.contoInteressi = interessi.Testo();
  }
  return esito;
}

std::vector<Spiegazione> SpiegaInteressiMora(const InteressiMora& e) {
  Catena giorni;
  for (const TrattoMora& tratto : e.tratti)
    giorni.push_back(
        {.regola = Periodo(tratto), .conto = "", .risultato = tratto.giorni, .unita = "giorni"});
  if (e.tratti.size() > 1)
    giorni.push_back(
        PassoMostrato("Giorni di ritardo", e.contoGiorni.Testo(), e.Giorni, "giorni", "0"));
  const Catena tasso{PassoMostrato("Tasso ufficiale di sconto medio, dalla " +
                                       TabellaPersonale(kFileTus, "") +
                                       ", in cui ogni tasso conta per i suoi giorni",
                                   e.contoTasso.Testo(), e.TassoMedio, "%", kModelloTasso)};
  Passaggio interessi =
      PassoMostrato(e.composto ? "Art. 9, interesse composto, poiché il ritardo supera 365 giorni"
                               : "Art. 9, interesse semplice",
                    e.contoInteressi, e.Interessi, "", kModelloInteressi);
  return {Risultato("GIORNI di RITARDO", std::move(giorni)), Risultato("TASSO", tasso),
          Risultato("INTERESSI DI MORA", {std::move(interessi)})};
}

}  // namespace orm
