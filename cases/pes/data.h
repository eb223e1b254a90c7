// The data of a note of estimates and their file INP_PES[_E].DAP.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/data_file.h"

namespace orm {

inline constexpr int kBeniPesMassimi = 20;

struct BenePes {
  std::string Descrizione;  // may be empty
  double Valore = 0;        // estimated, in the currency of the note
  double PercentualeTabellaF = 0;
};

struct DatiPes {
  std::vector<BenePes> Beni;
};

template <class Archive>
void Campi(Archive& file, DatiPes& d) {
  auto NumeroBeni = static_cast<std::int16_t>(d.Beni.size());
  file.Line(CountField("NumeroBeni", NumeroBeni, kBeniPesMassimi));
  d.Beni.resize(static_cast<std::size_t>(NumeroBeni));
  for (BenePes& bene : d.Beni)
    file.Line(Field("Descrizione", bene.Descrizione), MoneyField("Valore", bene.Valore),
              Field("PercentualeTabellaF", bene.PercentualeTabellaF));
}

}  // namespace orm
