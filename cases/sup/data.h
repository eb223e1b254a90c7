// The data of a note of support to the procedure manager and their file INP_SUP_E.DAP.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/data_file.h"

namespace orm {

inline constexpr int kAttivitaSupMassime = 10;
inline constexpr int kLottiSupMassimi = 20;

struct AttivitaSup {
  std::string Attivita;  // may be empty
  double Aliquota = 0;   // of Table B6, part of 1
};

struct LottoSup {
  std::string Classe, Categoria;
  double Importo = 0;  // of the works, in Euro
};

struct DatiSup {
  std::vector<AttivitaSup> Attivita;
  std::vector<LottoSup> Lotti;
};

template <class Archive>
void Campi(Archive& file, DatiSup& d) {
  auto NumeroAttivita = static_cast<std::int16_t>(d.Attivita.size());
  auto LottiSup = static_cast<std::int16_t>(d.Lotti.size());
  file.Line(CountField("NumeroAttivita", NumeroAttivita, kAttivitaSupMassime),
            CountField("LottiSup", LottiSup, kLottiSupMassimi));
  d.Attivita.resize(static_cast<std::size_t>(NumeroAttivita));
  d.Lotti.resize(static_cast<std::size_t>(LottiSup));
  for (AttivitaSup& attivita : d.Attivita)
    file.Line(Field("Attivita", attivita.Attivita), Field("Aliquota", attivita.Aliquota));
  for (LottoSup& lotto : d.Lotti)
    file.Line(Field("Classe", lotto.Classe), Field("Categoria", lotto.Categoria),
              MoneyField("Importo", lotto.Importo));
}

}  // namespace orm
