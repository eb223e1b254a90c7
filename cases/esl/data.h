// The data of a note of public works and their file INP_ESL[_E].DAP.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/data_file.h"

namespace orm {

inline constexpr int kLottiMassimi = 20;

// Amounts are in the currency of the note. A design amount of 0 means no design, one below 0 counts
// for the percentage and brings no fee; a supervision of 0 or below brings none.
struct LottoEsl {
  std::string Classe, Categoria;
  double ImportoProgettazione = 0;
  double ImportoDirezioneLavori = 0;
  std::string PrestazioniBase;         // of Table B, "a+b+f+l"
  std::string PrestazioniIntegrative;  // of Table B1, "m+o1+l4"
  std::int16_t NumeroAddetti = 0;      // site staff of service l4
  std::string MisureContabilita = "NO";
  double CoefficienteContabilita = 0;
};

struct DatiEsl {
  std::string TipoParcella = "NORMALE";  // "CONSUNTIVA", "INTERROTTA", "SCISSA"
  std::string CertificatoRegolare;       // "SI" or "NO"
  std::vector<LottoEsl> Lotti;
};

template <class Archive>
void Campi(Archive& file, DatiEsl& d) {
  auto LottiEsl = static_cast<std::int16_t>(d.Lotti.size());
  file.Line(Field("TipoParcella", d.TipoParcella), CountField("LottiEsl", LottiEsl, kLottiMassimi),
            Field("CertificatoRegolare", d.CertificatoRegolare));
  d.Lotti.resize(static_cast<std::size_t>(LottiEsl));
  for (LottoEsl& lotto : d.Lotti) {
    file.Line(Field("Classe", lotto.Classe), Field("Categoria", lotto.Categoria),
              MoneyField("ImportoProgettazione", lotto.ImportoProgettazione),
              MoneyField("ImportoDirezioneLavori", lotto.ImportoDirezioneLavori));
    file.Line(Field("PrestazioniBase", lotto.PrestazioniBase),
              Field("PrestazioniIntegrative", lotto.PrestazioniIntegrative),
              Field("NumeroAddetti", lotto.NumeroAddetti));
    file.Line(Field("MisureContabilita", lotto.MisureContabilita),
              Field("CoefficienteContabilita", lotto.CoefficienteContabilita));
  }
}

}  // namespace orm
