// The data of an expropriation note and their file INP_PPE[_E].DAP.
#pragma once

#include <cstdint>

#include "runtime/data_file.h"

namespace orm {

// Counts of cadastral units. The file has no money of its own but the advances.
struct DatiPpe {
  std::int16_t NumPartite = 0;
  std::int16_t NumParticelle = 0;
  std::int16_t NumParticelleVerbale = 0;  // of the condition report
  std::int16_t NumFabbricati = 0;         // of the condition report
  std::int16_t NumFrazionamenti = 0;
};

template <class Archive>
void Campi(Archive& file, DatiPpe& d) {
  file.Line(Field("NumPartite", d.NumPartite), Field("NumParticelle", d.NumParticelle),
            Field("NumParticelleVerbale", d.NumParticelleVerbale),
            Field("NumFabbricati", d.NumFabbricati), Field("NumFrazionamenti", d.NumFrazionamenti));
}

}  // namespace orm
