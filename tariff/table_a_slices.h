// Percentages of the tariff as notes print them, and the slices of an amount above the limit of
// Table A, each with a percentage of its own.
#pragma once

#include <string>

#include "runtime/explanation/conto.h"
#include "runtime/explanation/explanation.h"

namespace orm {

// A percentage cut to what its text shows, "4,36916%". One that is not needed has no text.
struct Percentuale {
  double valore = 0;
  std::string testo;
  Catena catena = {};  // how it came about, where that is asked
};

struct PercentualiTabellaA {
  Percentuale entro, oltre;
  bool divise = false;
};

// An amount or a part of it with its percentage.
struct QuotaImporto {
  Conto importo;
  const Percentuale& percentuale;
};

}  // namespace orm
