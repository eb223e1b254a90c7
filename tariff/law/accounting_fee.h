// Measurement and accounting of works: the progressive scale of Table E.
#pragma once

#include <cstddef>
#include <vector>

#include "runtime/explanation/conto.h"

namespace orm {

// Works with the same tariff period and coefficient.
struct RigaContabilita {
  int periodo = 5;  // 1 to 5; any other counts as 5
  double coefficiente = 1;
  Conto importo;  // in the currency of the note
};

// The part of a row's amount that lies in one band, and its fee.
struct FasciaContabilita {
  Conto aliquota;  // percent, of the row's period
  double coefficiente = 1;
  Conto parte;
  Conto onorario;          // neither cut nor rounded
  std::size_t fascia = 1;  // 1 to 6
  int periodo = 5;
};

struct OnorarioContabilita {
  Conto importo, onorario;  // sums over the rows; the fee is not rounded
  std::vector<FasciaContabilita> fasce;
};

// The scale runs over the sum of all rows in their order: a row goes on in the band where the one
// before has stopped. A row of zero or below counts with its sign in the sum.
OnorarioContabilita CalcoloOnorarioContabilita(const std::vector<RigaContabilita>& righe,
                                               bool modoLire);

}  // namespace orm
