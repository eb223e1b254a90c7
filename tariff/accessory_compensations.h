// Accessory compensations (compensi accessori conglobati, art. 13 of the tariff): a percentage of
// the fee by the amount of the works and by the criterion that the user chose.
#pragma once

#include <string>

#include "shell/state/run_state.h"

namespace orm {

inline constexpr const char* kFileCompensi = "CAC.CFG";

// Percentage by the steps of CAC.CFG, which the user keeps: a count (1 to 30) and a note, then for
// each step an amount in Lire, a percentage and a note. Between two steps it is interpolated,
// beyond either end it stays; an amount of 0 gives 0. A file that is absent, short, has another
// count or amounts that fall is a RuntimeFailure.
void PercCompensiAccessoriCfg(const WorkFolder& folder, double importo, double& percentuale);

// Percentage of D.M. 4-4-2001: from 30 down to 15, linear. In the unit of currency just above the
// first limit neither range holds and the result is 0.
double PercCompensiNuovaTariffaLire(double importo);
double PercCompensiNuovaTariffaEuro(double importo);

enum class ModoCompensi {
  Stampa = 1,       // finds the coefficient and prints the block
  Nessuno = 2,      // the note has no compensations
  SoloCalcolo = 3,  // finds the coefficient
};

// `importo`: the amount of the works, in Lire in both modes. `Coefficiente` is what a fee is
// multiplied by to contain its compensations, cut as it is printed in `StringaCoefficiente`
// (" x 1,6", empty when there are none). Without any amount of works it is 0.
void CompensiAccessori(RunState& stato, double importo, ModoCompensi modo, double& Coefficiente,
                       std::string& StringaCoefficiente);

}  // namespace orm
