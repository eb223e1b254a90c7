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

}  // namespace

InteressiMora CalcolaInteressiMora(const TabellaTus& tabella, double Onorario, const Date& inizio,
                                   const Date& fine, TipoInteresse tipo) {
  const std::size_t i = PeriodoIniziale(tabella, inizio);
  if (i == 0)
    throw RuntimeFailure(
        "La data di inizio mora precede il primo periodo della tabella dei tassi.");
  const std::size_t j = PeriodoFinale(tabella, i, fine);

  double Giorni = 0;
  double Somma = 0;
  if (i == j) {
    Giorni = Differenza(fine, inizio);
    Somma = Giorni * tabella[i - 1].Tasso;
  } else {
    for (std::size_t k = i; k <= j; ++k) {
      const PeriodoTus& periodo = tabella[k - 1];
      double giorni = 0;
      if (k == i)
        giorni = Differenza(periodo.FinePeriodo, inizio) + 1;
      else if (k == j)
        giorni = Differenza(fine, periodo.InizioPeriodo);
      else  // the last day of a whole period in the middle does not count
        giorni = Differenza(periodo.FinePeriodo, periodo.InizioPeriodo);
      Giorni += giorni;
      Somma += giorni * periodo.Tasso;
    }
  }
  if (Giorni == 0)
    throw RuntimeFailure(
        "I giorni di ritardo sono 0: il tasso medio non si può calcolare (divisione per zero).");

  InteressiMora esito{Giorni, Somma / Giorni, 0};
  if (tipo == TipoInteresse::Composto && Giorni > 365)
    esito.Interessi = Onorario * (std::pow(1 + esito.TassoMedio / 100, Giorni / 365) - 1);
  else
    esito.Interessi = Onorario * esito.TassoMedio / 100 * (Giorni / 365);
  return esito;
}

}  // namespace orm
