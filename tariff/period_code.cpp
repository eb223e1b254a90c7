#include "tariff/period_code.h"

#include "runtime/failure.h"
#include "runtime/numbers.h"

namespace orm {

int PeriodoDaCodice(const std::string& codice, int ultimo) {
  const auto periodo = ParseNumber(codice);
  if (!periodo || *periodo < 1 || *periodo > ultimo || *periodo != Int(*periodo))
    throw RuntimeFailure("Il periodo tariffario \"" + codice + "\" non esiste.")
        .AtField("PeriodoTariffario");
  return static_cast<int>(*periodo);
}

}  // namespace orm
