// How the percentage of the accessory compensations came about, as steps of an explanation.
#pragma once

#include <string>
#include <string_view>

#include "runtime/explanation/explanation.h"
#include "tariff/law/readings.h"

namespace orm {

// By the steps of CAC.CFG, of an amount in Lire; `nota` is what the file says of itself.
Passaggio PassoScaglioniCompensi(const Interpolazione& lettura, const std::string& nota,
                                 double percentuale);
// By D.M. 4-4-2001.
Passaggio PassoCompensi2001(double lire, double percentuale);
// As it was agreed.
Passaggio PassoCompensiAssegnati(double percentuale);
// By the criterion of the Region Calabria, for the residence of the tester.
Passaggio PassoCompensiCalabria(double lire, std::string_view residenza, double percentuale);
// From the percentage, cut, to the coefficient.
Passaggio PassoCoefficiente(double percentuale, double coefficiente);

}  // namespace orm
