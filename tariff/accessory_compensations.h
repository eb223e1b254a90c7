// Accessory compensations (compensi accessori conglobati, art. 13 of the tariff): a percentage of
// the fee by the amount of the works and by the criterion that the user chose. The note finds it
// and prints its block, Parcella::CompensiAccessori.
#pragma once

namespace orm {

// Percentage of D.M. 4-4-2001: from 30 down to 15, linear. In the unit of currency just above the
// first limit neither range holds and the result is 0.
double PercCompensiNuovaTariffaLire(double importo);
double PercCompensiNuovaTariffaEuro(double importo);

enum class ModoCompensi {
  Stampa = 1,       // finds the coefficient and prints the block
  Nessuno = 2,      // the note has no compensations
  SoloCalcolo = 3,  // finds the coefficient
};

}  // namespace orm
