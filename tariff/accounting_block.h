// The block of measuring and accounting on a report, and the texts of its figures.
#pragma once

#include <cstddef>
#include <string>

#include "runtime/explanation/explanation.h"
#include "tariff/law/accounting_fee.h"

namespace orm {

// "0,70", "1,10", "1,20", "1,40"; "1,00" for every other number.
std::string CoefficienteInStringa(double coefficiente);

// "1,83965% x 1,00 x       5.000.000 =          91.982", without line end.
std::string TestoFasciaContabilita(const FasciaContabilita& fascia, bool modoLire);

// How it came about: the rate, the part, the fee, as that text shows them.
Catena CatenaFascia(const FasciaContabilita& fascia, bool modoLire);

// A number right-justified in 15 characters, with the decimals of the currency. A longer one stands
// as it is. The value is not cut.
std::string NumeroContabilita(double valore, bool modoLire);

// As many rows of `contemp` as a note takes; an eleventh is a RuntimeFailure.
inline constexpr std::size_t kRigheContabilita = 10;

}  // namespace orm
