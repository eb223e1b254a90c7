// Interest on late payment of a fee, at the official discount rate that changes by periods.
#pragma once

#include "utilities/interest_rates.h"

namespace orm {

enum class TipoInteresse { Semplice, Composto };

struct InteressiMora {
  double Giorni = 0;      // days that were counted
  double TassoMedio = 0;  // percent a year, weighted by days
  double Interessi = 0;   // in the currency of the fee, not rounded
};

// `inizio` must not be later than `fine`. A first day before the table begins, or a span in which
// no day counts (the same day at both ends), is a RuntimeFailure.
InteressiMora CalcolaInteressiMora(const TabellaTus& tabella, double Onorario, const Date& inizio,
                                   const Date& fine, TipoInteresse tipo);

}  // namespace orm
