// Estimate of the yearly INARCASSA pension matured in 2001. Whole Lire.
#pragma once

#include <array>

#include "runtime/explanation/explanation.h"
#include "tariff/law/table_pension.h"

namespace orm {

using RedditiAnnui = std::array<double, kAnniReddito>;  // 1984 first, as declared

// Mean of the capped and revalued incomes that count for `Anni` (at least 1) of contribution.
// `passi`, here and below, takes how it came about.
double RedditoMedio(const RedditiAnnui& redditi, int Anni, Catena* passi = nullptr);

// The pension of a mean income, each band's part cut to the Lira. A mean that falls in none of the
// ranges (above the last, or with a fraction between two of them) leaves `Pensione` as it was.
void PensioneDelReddito(double medio, int Anni, int Giorni, double& Pensione,
                        Catena* passi = nullptr);

}  // namespace orm
