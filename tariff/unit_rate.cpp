#include "tariff/unit_rate.h"

#include "runtime/numbers.h"
#include "tariff/money.h"

namespace orm {

CifraUnitaria CifraInValuta(double lire, bool ModoLire) {
  const double valore = ModoLire ? lire : LireInEuro(lire);
  return {valore, FormattaCopia(valore, ModoLire && valore == Int(valore) ? 0 : -2)};
}

}  // namespace orm
