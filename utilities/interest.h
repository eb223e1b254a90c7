// Interest on late payment of a fee, at the official discount rate that changes by periods.
#pragma once

#include <vector>

#include "dialogs/data_forms/explanations.h"
#include "runtime/explanation/conto.h"
#include "utilities/interest_rates.h"

namespace orm {

enum class TipoInteresse { Semplice, Composto };

// The days that were counted at one rate.
struct TrattoMora {
  Date da, a;
  enum class Estremi { Entrambi, SenzaIlPrimo, SenzaLUltimo } estremi = Estremi::Entrambi;
  double giorni = 0, tasso = 0;
  std::string nota = {};  // where the rate is from
};

struct InteressiMora {
  double Giorni = 0;      // days that were counted
  double TassoMedio = 0;  // percent a year, weighted by days
  double Interessi = 0;   // in the currency of the fee, not rounded
  std::vector<TrattoMora> tratti;
  bool composto = false;
  Conto contoGiorni, contoTasso;  // how these came about
  std::string contoInteressi;
};

// `inizio` must not be later than `fine`. A first day before the table begins, or a span in which
// no day counts (the same day at both ends), is a RuntimeFailure.
InteressiMora CalcolaInteressiMora(const TabellaTus& tabella, double Onorario, const Date& inizio,
                                   const Date& fine, TipoInteresse tipo);

// Days, rate and interest as the dialog shows them, each with its steps.
std::vector<Spiegazione> SpiegaInteressiMora(const InteressiMora& esito);

inline constexpr const char *kModelloTasso = "##0.000000000",
                            *kModelloInteressi = "###,###,###,###,###";

}  // namespace orm
