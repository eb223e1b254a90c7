#include "tariff/forms/amount_box.h"

#include <cmath>

#include "runtime/text.h"
#include "tariff/money.h"

namespace orm {

std::string SommaEccessiva(std::string_view voce, double importo, double altri, double massimo) {
  if (std::fabs(importo) + altri <= massimo) return "";
  return TrimRight(voce) + (altri == 0 ? ":" : ": CON GLI ALTRI LOTTI LA SOMMA") +
         " NON PUÒ SUPERARE " + FormattaCopia(massimo, 2) + ".";
}

std::string SommaEccessiva(const ImportoBox& importo, double altri) {
  return SommaEccessiva(importo.ci.Caption(), importo.Value(), altri, importo.Massimo());
}

}  // namespace orm
