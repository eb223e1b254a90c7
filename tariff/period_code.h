// The code of a tariff period as data files keep it: a digit in a text.
#pragma once

#include <string>

namespace orm {

// 1 to `ultimo`; any other text is a RuntimeFailure of the field PeriodoTariffario.
int PeriodoDaCodice(const std::string& codice, int ultimo);

}  // namespace orm
