// The data of a note of site safety and their files INP_SC1[_E].DAP, INP_SC2[_E].DAP.
//
// The file has the general shape of groups of lots; here each lot is a group of its own.
#pragma once

#include <string>
#include <vector>

#include "tariff/files/row_lots.h"

namespace orm {

inline constexpr int kLottiSicMassimi = 20;
// Of the duties, from 0; these two have increments.
inline constexpr std::size_t kCoordinatoreProgetto = 3, kCoordinatoreEsecuzione = 4;
inline constexpr std::size_t kIncrementi = 3;  // of each

// Amounts are in the currency of the note. A design amount below 0 is that of the first project: it
// counts in sums without its sign and yields to the amount executed.
struct LottoSic {
  std::string Classe, Categoria;
  std::string Tariffa;  // "5" in "SC1", "6" in "SC2"
  double ImportoProgetto = 0;
  double ImportoEsecuzione = 0;
  // "1" for each thing chosen: 5 duties; 5 or 10 conditions for each duty; 3 increments for each of
  // the duties 4 and 5, where "2" marks one that is not available.
  std::string StringaPrestazioni, StringaMaggiorazioni, StringaIncrementi;
};

struct DatiSicurezza {
  std::string TipoDiParcella = "NORMALE";  // "CONSUNTIVA", "INTERROTTA"
  std::vector<LottoARighe> Gruppi;
  std::vector<LottoSic> Lotti;
};

template <class Archive>
void Campi(Archive& file, DatiSicurezza& d) {
  auto NumeroGruppi = static_cast<std::int16_t>(d.Gruppi.size());
  auto NumeroLotti = static_cast<std::int16_t>(d.Lotti.size());
  file.Line(Field("TipoDiParcella", d.TipoDiParcella),
            CountField("NumeroGruppi", NumeroGruppi, kLottiSicMassimi),
            CountField("NumeroLotti", NumeroLotti, kLottiSicMassimi));
  d.Gruppi.resize(static_cast<std::size_t>(NumeroGruppi));
  d.Lotti.resize(static_cast<std::size_t>(NumeroLotti));
  CampiLottiARighe(file, d.Gruppi, d.Lotti.size(),
                   {"LottiDelGruppo", "UltimoLottoDelGruppo", "TariffaDelLotto"});
  for (LottoSic& l : d.Lotti) {
    file.Line(Field("Classe", l.Classe), Field("Categoria", l.Categoria),
              Field("Tariffa", l.Tariffa), MoneyField("ImportoProgetto", l.ImportoProgetto),
              MoneyField("ImportoEsecuzione", l.ImportoEsecuzione));
    file.Line(Field("StringaPrestazioni", l.StringaPrestazioni),
              Field("StringaMaggiorazioni", l.StringaMaggiorazioni),
              Field("StringaIncrementi", l.StringaIncrementi));
  }
}

}  // namespace orm
