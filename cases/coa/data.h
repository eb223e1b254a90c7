// The data of a testing note and their file INP_COA[_E].DAP.
#pragma once

#include <cstdint>

#include "runtime/data_file.h"

namespace orm {

struct DatiCoa {
  std::int16_t PeriodoCollaudo = 5;  // tariff period, 3 to 5
  double ImportoCollaudo = 0;        // works tested, in the currency of the note
  std::int16_t TipoCollaudo = 1;     // 1 testing, 2 certificate
  double MaggiorazioneCollaudo = 0;  // percent, for testing during the works
  std::int16_t NumeroFacciate = 0;   // pages of accounting documents revised
};

template <class Archive>
void Campi(Archive& file, DatiCoa& d) {
  file.Line(Field("PeriodoCollaudo", d.PeriodoCollaudo),
            MoneyField("ImportoCollaudo", d.ImportoCollaudo), Field("TipoCollaudo", d.TipoCollaudo),
            Field("MaggiorazioneCollaudo", d.MaggiorazioneCollaudo),
            Field("NumeroFacciate", d.NumeroFacciate));
}

}  // namespace orm
