// The data of a note of the chief engineer and their file INP_INC[_E].DAP.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/data_file.h"

namespace orm {

inline constexpr int kLottiIncMassimi = 20;

struct LottoInc {
  std::string Classe, Categoria;
  double Importo = 0;                 // of the works, in the currency of the note
  std::string Prestazioni = "g+i+l";  // letters of Table B
};

struct DatiInc {
  std::string PeriodoTariffario = "5";  // "1" to "5"
  std::string CertificatoRegolareEsecuzione = "NO";
  std::vector<LottoInc> Lotti;
};

template <class Archive>
void Campi(Archive& file, DatiInc& d) {
  auto LottiInc = static_cast<std::int16_t>(d.Lotti.size());
  file.Line(Field("PeriodoTariffario", d.PeriodoTariffario),
            Field("CertificatoRegolareEsecuzione", d.CertificatoRegolareEsecuzione),
            CountField("LottiInc", LottiInc, kLottiIncMassimi));
  d.Lotti.resize(static_cast<std::size_t>(LottiInc));
  for (LottoInc& lotto : d.Lotti)
    file.Line(Field("Classe", lotto.Classe), Field("Categoria", lotto.Categoria),
              MoneyField("Importo", lotto.Importo), Field("Prestazioni", lotto.Prestazioni));
}

}  // namespace orm
