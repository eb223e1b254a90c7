// Lots that hold rows: how the data files of several cases tell which rows belong to which lot, and
// the tariff period of each row.
//
// A lot's rows are consecutive and all lots share one list of rows. The file has, after the rows'
// count, a line for each lot with the number of its rows and the number of its last row, then a
// line for each row with its period, all of the first lot first.
#pragma once

#include <cstdint>
#include <vector>

#include "runtime/data_file.h"
#include "runtime/failure.h"

namespace orm {

struct LottoARighe {
  std::int16_t UltimaRiga = 0;                // number of its last row, from 1
  std::vector<std::int16_t> PeriodoDelLotto;  // tariff periods, one for each of its rows
};

// What messages call the fields and where they stand, as each case has it.
struct NomiLottiARighe {
  const char* righe;
  const char* ultima;
  const char* periodo;
  int lineaDeiConti = 1;  // the line before the first lot
};

// The lots in a list that has its length already. The counts must agree with each other and with
// `righe`, the rows of all lots: RuntimeFailure.
template <class Archive>
void CampiLottiARighe(Archive& file, std::vector<LottoARighe>& lotti, std::size_t righe,
                      const NomiLottiARighe& nomi) {
  const int massimo = static_cast<int>(righe);
  std::size_t somma = 0;
  int linea = nomi.lineaDeiConti;
  for (LottoARighe& lotto : lotti) {
    ++linea;
    auto RigheDelLotto = static_cast<std::int16_t>(lotto.PeriodoDelLotto.size());
    file.Line(CountField(nomi.righe, RigheDelLotto, massimo),
              CountField(nomi.ultima, lotto.UltimaRiga, massimo));
    lotto.PeriodoDelLotto.resize(static_cast<std::size_t>(RigheDelLotto));
    somma += lotto.PeriodoDelLotto.size();
    if (somma != static_cast<std::size_t>(lotto.UltimaRiga))
      throw RuntimeFailure("Le righe dei lotti non corrispondono ai loro periodi.")
          .AtLine(linea)
          .AtField(nomi.ultima);
  }
  if (somma != righe)
    throw RuntimeFailure("I lotti non hanno tante righe quante la parcella.")
        .AtLine(linea)
        .AtField(nomi.righe);
  for (LottoARighe& lotto : lotti)
    for (std::int16_t& periodo : lotto.PeriodoDelLotto) file.Line(Field(nomi.periodo, periodo));
}

}  // namespace orm
