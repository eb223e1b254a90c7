// A rate of the law for one unit (a square metre, an hectare, an hour) as a note has it.
#pragma once

#include <string>

namespace orm {

struct CifraUnitaria {
  double valore;
  std::string testo;  // "2.759,48"; whole Lire without decimals
};

// In Euro a rate is converted to the cent before anything is multiplied by it.
CifraUnitaria CifraInValuta(double lire, bool ModoLire);

}  // namespace orm
